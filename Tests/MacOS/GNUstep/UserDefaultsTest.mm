// The conversions between preferences and property lists, for real: on GNUstep's Foundation, which
// runs where there is no macOS. Built without ARC, which GNUstep here has none of.

#include "Orvello/Adapters/macOS/Early/CocoaText.h"
#include "Orvello/Adapters/macOS/Early/CocoaUserDefaults.h"
#include "Orvello/Adapters/macOS/Early/PropertyList.h"
#include "Tests/MacOS/GNUstep/GNUstepTest.h"

#include <QRect>

#include <gtest/gtest.h>

#include <limits>

@implementation NSUserDefaults (Suite)

- (instancetype)initWithSuiteName:(NSString*)name
{
    (void)name;
    [self release];
    return [[NSUserDefaults standardUserDefaults] retain];
}

@end

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;

class PropertyListTest : public GNUstepTest {
protected:
    static void expectKept(const QVariant& value)
    {
        const QVariant kept = PropertyList::value(PropertyList::object(value));
        EXPECT_EQ(kept.typeId(), value.typeId()) << value.typeName() << " " << kept.typeName();
        EXPECT_EQ(kept, value) << value.toString().toStdString();
    }
};

TEST_F(PropertyListTest, keepsTheTypeOfEveryNumber)
{
    expectKept(true);
    expectKept(false);
    for (const qint64 number : { qint64(0), qint64(1), qint64(-7), qint64(1) << 40,
             std::numeric_limits<qint64>::max(), std::numeric_limits<qint64>::min() })
        expectKept(QVariant::fromValue<qlonglong>(number));
    for (const double number : { 0.0, 1.0, -0.5, 0.1, 1e300, 25.0 })
        expectKept(number);
}

TEST_F(PropertyListTest, widensSmallNumbers)
{
    EXPECT_EQ(PropertyList::value(PropertyList::object(7)), QVariant(qlonglong(7)));
    EXPECT_EQ(PropertyList::value([NSNumber numberWithFloat:0.5F]), QVariant(0.5));
}

TEST_F(PropertyListTest, keepsTexts)
{
    for (const QString& text : { u""_s, u"Yellow"_s, u"größer — 𝄞"_s, u"two\nlines"_s })
        expectKept(text);
    EXPECT_EQ(qString(nil), QString());
    EXPECT_EQ([nsString(u"𝄞"_s) length], 2u);
}

TEST_F(PropertyListTest, passesOnWhatItDoesNotRead)
{
    NSDate* const date = [NSDate dateWithTimeIntervalSinceReferenceDate:123.456];
    NSDictionary* const map = @{@"list" : @[ @1, @"x", date ]};

    for (const id object : { (id)date, (id)map, (id)[NSData data] })
        EXPECT_TRUE([PropertyList::object(PropertyList::value(object)) isEqual:object]);
}

TEST_F(PropertyListTest, refusesWhatCannotBeStored)
{
    EXPECT_TRUE(PropertyList::object(QRect(1, 2, 3, 4)) == nil);
    EXPECT_TRUE(PropertyList::object(QVariant()) == nil);
    EXPECT_TRUE(PropertyList::object(QVariantList { 1 }) == nil);
    EXPECT_FALSE(PropertyList::value(nil).isValid());
}

class CocoaUserDefaultsTest : public GNUstepTest {
protected:
    ~CocoaUserDefaultsTest() override { defaults.remove(u"speed"_s); }

    CocoaUserDefaults defaults;
};

TEST_F(CocoaUserDefaultsTest, keepsWhatIsSet)
{
    EXPECT_FALSE(defaults.value(u"speed"_s).isValid());

    defaults.setValue(u"speed"_s, 60.0);

    EXPECT_EQ(defaults.value(u"speed"_s), QVariant(60.0));
    EXPECT_EQ(CocoaUserDefaults().value(u"speed"_s), QVariant(60.0));
    EXPECT_EQ(defaults.storedValues().value(u"speed"_s), QVariant(60.0));
}

TEST_F(CocoaUserDefaultsTest, storesWhatItDoesNotRead)
{
    NSArray* const list = @[ @"Helvetica", @12 ];
    NSUserDefaults* const database = [NSUserDefaults standardUserDefaults];
    [database setPersistentDomain:@ { @"speed" : list } forName:@"app.former.program"];

    defaults.setValue(
        u"speed"_s, CocoaUserDefaults(u"app.former.program"_s).storedValues().value(u"speed"_s));

    EXPECT_TRUE([[database objectForKey:@"speed"] isEqual:list]);
    [database removePersistentDomainForName:@"app.former.program"];
}

TEST_F(CocoaUserDefaultsTest, forgetsWhatIsRemoved)
{
    defaults.setValue(u"speed"_s, 60.0);
    defaults.remove(u"speed"_s);
    EXPECT_FALSE(defaults.value(u"speed"_s).isValid());

    defaults.setValue(u"speed"_s, 60.0);
    defaults.setValue(u"speed"_s, QVariant());
    EXPECT_FALSE(defaults.storedValues().contains(u"speed"_s));
}

TEST_F(CocoaUserDefaultsTest, storesNoRegisteredValues)
{
    [[NSUserDefaults standardUserDefaults] registerDefaults:@{@"fontSize" : @30.0}];

    EXPECT_EQ(defaults.value(u"fontSize"_s), QVariant(30.0));
    EXPECT_FALSE(defaults.storedValues().contains(u"fontSize"_s));
}

TEST_F(CocoaUserDefaultsTest, readsAnotherProgramsDomain)
{
    NSUserDefaults* const database = [NSUserDefaults standardUserDefaults];
    [database setPersistentDomain:@{
        @"ghostMode" : [NSNumber numberWithBool:NO],
        @"speed" : @30.5
    }
                          forName:@"app.former.program"];
    const CocoaUserDefaults former(u"app.former.program"_s);

    EXPECT_EQ(
        former.storedValues(), (QVariantMap { { u"ghostMode"_s, false }, { u"speed"_s, 30.5 } }));
    EXPECT_TRUE(CocoaUserDefaults(u"app.no.program"_s).storedValues().isEmpty());
    [database removePersistentDomainForName:@"app.former.program"];
}

} // namespace
} // namespace Orvello
