// The conversions between preferences and property lists, for real: on GNUstep's Foundation, which
// runs where there is no macOS. Built without ARC, which GNUstep here has none of.

#include "Orvello/Adapters/macOS/Early/CocoaText.h"
#include "Orvello/Adapters/macOS/Early/CocoaUserDefaults.h"
#include "Orvello/Adapters/macOS/Early/PropertyList.h"
#include "Tests/MacOS/GNUstep/GNUstepTest.h"

#include <QDateTime>
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
    expectKept(QVariant::fromValue<qulonglong>(std::numeric_limits<quint64>::max()));
    for (const double number : { 0.0, 1.0, -0.5, 0.1, 1e300, 25.0 })
        expectKept(number);
}

TEST_F(PropertyListTest, widensSmallNumbers)
{
    EXPECT_EQ(PropertyList::value(PropertyList::object(7)), QVariant(qlonglong(7)));
    EXPECT_EQ(PropertyList::value(PropertyList::object(0.5F)), QVariant(0.5));
    EXPECT_EQ(PropertyList::value(PropertyList::object(4000000000U)), QVariant(4000000000LL));
}

TEST_F(PropertyListTest, keepsTexts)
{
    for (const QString& text : { u""_s, u"Yellow"_s, u"größer — 𝄞"_s, u"two\nlines"_s })
        expectKept(text);
    EXPECT_EQ(qString(nil), QString());
    EXPECT_EQ([nsString(u"𝄞"_s) length], 2u);
}

TEST_F(PropertyListTest, keepsWhatOtherProgramsStore)
{
    expectKept(QByteArray("a\0b", 3));
    expectKept(QByteArray(""));
    expectKept(QDateTime::fromMSecsSinceEpoch(1763712000123, Qt::UTC));
    expectKept(QDateTime::fromMSecsSinceEpoch(-5, Qt::UTC));
    expectKept(QVariantList { true, 1.5, u"x"_s, QVariantList {} });
    expectKept(QVariantMap { { u"a"_s, false }, { u"ü"_s, QVariantMap { { u"n"_s, 1.0 } } } });
    EXPECT_EQ(PropertyList::value(PropertyList::object(QStringList { u"a"_s, u"b"_s })),
        QVariant(QVariantList { u"a"_s, u"b"_s }));
}

TEST_F(PropertyListTest, refusesWhatCannotBeStored)
{
    EXPECT_TRUE(PropertyList::object(QRect(1, 2, 3, 4)) == nil);
    EXPECT_TRUE(PropertyList::object(QVariant()) == nil);
    EXPECT_TRUE(PropertyList::object(QVariantList { 1, QRect() }) == nil);
    EXPECT_TRUE(PropertyList::object(QVariantMap { { u"k"_s, QVariantList { QRect() } } }) == nil);
    EXPECT_FALSE(PropertyList::value(nil).isValid());
    EXPECT_FALSE(PropertyList::value([NSNull null]).isValid());
    EXPECT_TRUE(PropertyList::map(nil).isEmpty());
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
