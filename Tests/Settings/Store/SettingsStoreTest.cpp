#include "Orvello/Settings/Store/SettingsStore.h"

#include "Tests/Support/FakeUserDefaults.h"

#include <QMetaProperty>
#include <QSet>
#include <QSignalSpy>

#include <gtest/gtest.h>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;

class SettingsStoreTest : public ::testing::Test {
protected:
    /// The preferences as the store reads them with one value stored.
    QVariant readBack(const char* property, const QVariant& stored)
    {
        defaults.stored.insert(QString::fromLatin1(property), stored);
        return SettingsStore(defaults).property(property);
    }

    Testing::FakeUserDefaults defaults;
};

/// One property with its default and another value of its type.
struct Property {
    const char* name;
    QVariant standard;
    QVariant other;
};

const Property properties[] = {
    { "fontSize", 30.0, 44.5 },
    { "textColorName", u"White"_s, u"Cyan"_s },
    { "backgroundOpacity", 0.72, 0.25 },
    { "speed", 25.0, 35.5 },
    { "stealthMode", true, false },
    { "voiceFollow", false, true },
    { "voiceSensitivity", 0.6, 0.9 },
    { "countdownSeconds", 3.0, 0.0 },
    { "slideshowPauseKey", true, false },
    { "slideSync", true, false },
    { "recordingBadgeFolded", false, true },
    { "keptPace", 0.0, 140.5 },
    { "cardTime", u""_s, u"left"_s },
    { "onboardingSeenVersion", Q_INT64_C(0), Q_INT64_C(3) },
};

QMetaMethod notifySignal(const Property& property)
{
    const QMetaObject& settings = SettingsStore::staticMetaObject;
    return settings.property(settings.indexOfProperty(property.name)).notifySignal();
}

/// Values that are neither a number nor a boolean nor a string.
const QVariant oddities[] = { QVariant(QByteArray("x")), QVariant(QVariantList { 1 }),
    QVariant(QVariantMap { { u"a"_s, 1 } }), QVariant::fromValue(nullptr) };

TEST_F(SettingsStoreTest, hasTheDefaultsOfAFreshAccount)
{
    const SettingsStore settings(defaults);

    EXPECT_EQ(settings.fontSize(), 30.0);
    EXPECT_EQ(settings.textColorName(), u"White"_s);
    EXPECT_EQ(settings.backgroundOpacity(), 0.72);
    EXPECT_EQ(settings.speed(), 25.0);
    EXPECT_TRUE(settings.stealthMode());
    EXPECT_FALSE(settings.voiceFollow());
    EXPECT_EQ(settings.voiceSensitivity(), 0.6);
    EXPECT_EQ(settings.countdownSeconds(), 3.0);
    EXPECT_TRUE(settings.slideshowPauseKey());
    EXPECT_TRUE(settings.slideSync());
    EXPECT_FALSE(settings.recordingBadgeFolded());
    EXPECT_EQ(settings.keptPace(), 0.0);
    EXPECT_EQ(settings.cardTime(), QString());
    EXPECT_EQ(settings.onboardingSeenVersion(), 0);
    EXPECT_EQ(defaults.writes, 0);
}

TEST_F(SettingsStoreTest, readsEachStoredValueOnceWhenItIsMade)
{
    for (const Property& property : properties) {
        defaults.stored = { { QString::fromLatin1(property.name), property.other } };

        const SettingsStore settings(defaults);
        defaults.stored.clear();

        for (const Property& each : properties)
            EXPECT_EQ(settings.property(each.name),
                each.name == property.name ? each.other : each.standard)
                << property.name << " stored, reading " << each.name;
    }
}

TEST_F(SettingsStoreTest, storesEachAssignmentAtOnceWithItsType)
{
    SettingsStore settings(defaults);
    for (const Property& property : properties) {
        const QString key = QString::fromLatin1(property.name);
        defaults.stored.clear();

        ASSERT_TRUE(settings.setProperty(property.name, property.other));

        EXPECT_EQ(settings.property(property.name), property.other) << property.name;
        EXPECT_EQ(defaults.stored.keys(), QStringList { key });
        EXPECT_EQ(defaults.stored[key], property.other) << property.name;
        EXPECT_EQ(defaults.stored[key].typeId(), property.other.typeId()) << property.name;
    }
}

TEST_F(SettingsStoreTest, announcesEachChange)
{
    for (const Property& property : properties) {
        SettingsStore settings(defaults);
        QSignalSpy changed(&settings, notifySignal(property));

        settings.setProperty(property.name, property.other);
        EXPECT_EQ(changed.count(), 1) << property.name;

        settings.setProperty(property.name, property.standard);
        EXPECT_EQ(changed.count(), 2) << property.name;
    }
}

TEST_F(SettingsStoreTest, storesButDoesNotAnnounceAnEqualAssignment)
{
    for (const Property& property : properties) {
        SettingsStore settings(defaults);
        const QSignalSpy changed(&settings, notifySignal(property));
        const int writes = defaults.writes;

        settings.setProperty(property.name, property.standard);

        EXPECT_EQ(changed.count(), 0) << property.name;
        EXPECT_EQ(defaults.writes, writes + 1) << property.name;
        EXPECT_EQ(defaults.stored.value(QString::fromLatin1(property.name)), property.standard);
    }
}

TEST_F(SettingsStoreTest, hasTheNewValueInPlaceWhenItAnnouncesIt)
{
    SettingsStore settings(defaults);
    double read = 0;
    QVariant stored;
    QObject::connect(&settings, &SettingsStore::speedChanged, &settings, [&] {
        read = settings.speed();
        stored = defaults.stored.value(u"speed"_s);
    });

    settings.setSpeed(35);

    EXPECT_EQ(read, 35.0);
    EXPECT_EQ(stored, QVariant(35.0));
}

TEST_F(SettingsStoreTest, takesTheDefaultForANumberThatIsNone)
{
    for (const char* number :
        { "fontSize", "backgroundOpacity", "speed", "voiceSensitivity", "countdownSeconds" }) {
        const QVariant standard = SettingsStore(defaults).property(number);

        EXPECT_EQ(readBack(number, u"fast"_s), standard) << number;
        EXPECT_EQ(readBack(number, u"40"_s), standard) << number;
        for (const QVariant& odd : oddities)
            EXPECT_EQ(readBack(number, odd), standard) << number << odd.typeName();
        defaults.stored.clear();
    }
}

TEST_F(SettingsStoreTest, takesTheDefaultForABooleanThatIsNone)
{
    for (const char* boolean : { "stealthMode", "voiceFollow", "slideshowPauseKey", "slideSync" }) {
        const QVariant standard = SettingsStore(defaults).property(boolean);

        for (const QVariant& stored :
            { QVariant(u"NO"_s), QVariant(u"1"_s), QVariant(2), QVariant(0.5) })
            EXPECT_EQ(readBack(boolean, stored), standard) << boolean << stored.typeName();
        for (const QVariant& odd : oddities)
            EXPECT_EQ(readBack(boolean, odd), standard) << boolean << odd.typeName();
        defaults.stored.clear();
    }
}

TEST_F(SettingsStoreTest, takesBooleansAndNumbersForEachOther)
{
    EXPECT_EQ(readBack("stealthMode", 0), false);
    EXPECT_EQ(readBack("voiceFollow", 1), true);
    EXPECT_EQ(readBack("slideSync", 0.0), false);
    EXPECT_EQ(readBack("speed", true), 1.0);
    EXPECT_EQ(readBack("speed", 40), 40.0);
    EXPECT_EQ(readBack("countdownSeconds", Q_INT64_C(5)), 5.0);
}

TEST_F(SettingsStoreTest, takesWhiteForATextColorNameThatIsNoString)
{
    EXPECT_EQ(readBack("textColorName", 5), u"White"_s);
    EXPECT_EQ(readBack("textColorName", true), u"White"_s);
    for (const QVariant& odd : oddities)
        EXPECT_EQ(readBack("textColorName", odd), u"White"_s);
}

TEST_F(SettingsStoreTest, readsTheOnboardingVersionAsAnInteger)
{
    EXPECT_EQ(readBack("onboardingSeenVersion", 2.9), Q_INT64_C(2));
    EXPECT_EQ(readBack("onboardingSeenVersion", true), Q_INT64_C(1));
    EXPECT_EQ(readBack("onboardingSeenVersion", u"3"_s), Q_INT64_C(3));
    EXPECT_EQ(readBack("onboardingSeenVersion", u"new"_s), Q_INT64_C(0));
    for (const QVariant& odd : oddities)
        EXPECT_EQ(readBack("onboardingSeenVersion", odd), Q_INT64_C(0));
}

TEST_F(SettingsStoreTest, doesNotClampWhatItReadsOrIsGiven)
{
    EXPECT_EQ(readBack("speed", 1000.0), 1000.0);
    EXPECT_EQ(readBack("fontSize", -3.25), -3.25);
    EXPECT_EQ(readBack("backgroundOpacity", 7.0), 7.0);

    SettingsStore settings(defaults);
    settings.setSpeed(100'000.125);
    EXPECT_EQ(settings.speed(), 100'000.125);
    EXPECT_EQ(defaults.stored[u"speed"_s], QVariant(100'000.125));
}

TEST_F(SettingsStoreTest, isShadowedByLaunchArgumentsAsStrings)
{
    defaults.stored = { { u"speed"_s, 40.0 }, { u"stealthMode"_s, false } };
    defaults.launchArguments = { { u"speed"_s, u"55"_s }, { u"stealthMode"_s, u"NO"_s },
        { u"textColorName"_s, u"Pink"_s }, { u"onboardingSeenVersion"_s, u"7"_s } };

    SettingsStore settings(defaults);

    EXPECT_EQ(settings.speed(), 25.0);
    EXPECT_TRUE(settings.stealthMode());
    EXPECT_EQ(settings.textColorName(), u"Pink"_s);
    EXPECT_EQ(settings.onboardingSeenVersion(), 7);

    settings.setSpeed(60);
    EXPECT_EQ(settings.speed(), 60.0);
    EXPECT_EQ(defaults.stored[u"speed"_s], QVariant(60.0));
}

TEST_F(SettingsStoreTest, offersTheColorPresetsInOrder)
{
    QStringList names;
    for (const SettingsStore::ColorPreset& preset : SettingsStore::colorPresets())
        names.append(preset.name);

    EXPECT_EQ(names,
        (QStringList { u"White"_s, u"Yellow"_s, u"Green"_s, u"Cyan"_s, u"Orange"_s, u"Pink"_s }));
    EXPECT_EQ(SettingsStore::colorPresets().front().color, QColor(Qt::white));
}

TEST_F(SettingsStoreTest, showsTheColorThatTheNameStandsFor)
{
    SettingsStore settings(defaults);
    QList<QRgb> colors;
    for (const SettingsStore::ColorPreset& preset : SettingsStore::colorPresets()) {
        settings.setTextColorName(preset.name);
        EXPECT_EQ(settings.textColor(), preset.color);
        colors.append(settings.textColor().rgba());
    }

    EXPECT_EQ(QSet<QRgb>(colors.begin(), colors.end()).size(), 6);
}

TEST_F(SettingsStoreTest, keepsAnUnknownColorNameAndShowsWhite)
{
    for (const QString& name : { u"Purple"_s, u"yellow"_s, u""_s }) {
        defaults.stored.insert(u"textColorName"_s, name);

        SettingsStore settings(defaults);

        EXPECT_EQ(settings.textColorName(), name);
        EXPECT_EQ(settings.textColor(), QColor(Qt::white));
        EXPECT_EQ(settings.property("textColor").value<QColor>(), QColor(Qt::white));
    }
    EXPECT_EQ(defaults.stored[u"textColorName"_s], QVariant(u""_s));
}

} // namespace
} // namespace Orvello
