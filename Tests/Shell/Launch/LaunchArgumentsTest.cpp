#include "Orvello/Shell/Launch/LaunchArguments.h"

#include <gtest/gtest.h>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;

QVariantMap preferences(const QStringList& arguments)
{
    return LaunchArguments::preferences(arguments);
}

TEST(LaunchArgumentsTest, readsPairsAsStrings)
{
    EXPECT_EQ(preferences({ u"-speed"_s, u"40"_s, u"-stealthMode"_s, u"NO"_s }),
        (QVariantMap { { u"speed"_s, u"40"_s }, { u"stealthMode"_s, u"NO"_s } }));
}

TEST(LaunchArgumentsTest, findNothingOnAnEmptyCommandLine)
{
    EXPECT_TRUE(preferences({}).isEmpty());
    EXPECT_TRUE(preferences({ u"talk.pptx"_s }).isEmpty());
}

TEST(LaunchArgumentsTest, passOverSwitchesAndFiles)
{
    EXPECT_EQ(preferences({ u"--no-stealth"_s, u"talk.pptx"_s, u"-speed"_s, u"40"_s,
                  u"--autostart"_s, u"other.pptx"_s }),
        (QVariantMap { { u"speed"_s, u"40"_s } }));
}

TEST(LaunchArgumentsTest, passOverAKeyWithoutAValue)
{
    EXPECT_EQ(preferences({ u"-speed"_s, u"-fontSize"_s, u"40"_s }),
        (QVariantMap { { u"fontSize"_s, u"40"_s } }));
    EXPECT_TRUE(preferences({ u"-speed"_s, u"--autostart"_s }).isEmpty());
    EXPECT_TRUE(preferences({ u"-speed"_s }).isEmpty());
}

TEST(LaunchArgumentsTest, takeANegativeNumberForAValue)
{
    EXPECT_EQ(preferences({ u"-speed"_s, u"-5"_s, u"-fontSize"_s, u"-.5"_s }),
        (QVariantMap { { u"speed"_s, u"-5"_s }, { u"fontSize"_s, u"-.5"_s } }));
    EXPECT_TRUE(preferences({ u"-5"_s, u"value"_s }).isEmpty());
}

TEST(LaunchArgumentsTest, takeAnEmptyValueAndALoneDash)
{
    EXPECT_EQ(preferences({ u"-textColorName"_s, u""_s, u"-script"_s, u"-"_s }),
        (QVariantMap { { u"textColorName"_s, u""_s }, { u"script"_s, u"-"_s } }));
    EXPECT_TRUE(preferences({ u"-"_s, u"value"_s }).isEmpty());
}

TEST(LaunchArgumentsTest, keepTheLastValueOfARepeatedKey)
{
    EXPECT_EQ(preferences({ u"-speed"_s, u"40"_s, u"-speed"_s, u"50"_s }),
        (QVariantMap { { u"speed"_s, u"50"_s } }));
}

TEST(LaunchArgumentsTest, tellOptionsFromOperands)
{
    const LaunchArguments::Parts parts = LaunchArguments::parts(
        { u"--voice"_s, u"talk.pptx"_s, u"-fontSize"_s, u"--x"_s, u"-5"_s, u"-"_s });

    EXPECT_EQ(parts.options, (QStringList { u"--voice"_s, u"-fontSize"_s, u"--x"_s }));
    EXPECT_EQ(parts.operands, (QStringList { u"talk.pptx"_s, u"-5"_s, u"-"_s }));
}

TEST(LaunchArgumentsTest, takeEverythingAfterTwoDashesForOperands)
{
    const LaunchArguments::Parts parts = LaunchArguments::parts(
        { u"-speed"_s, u"--"_s, u"--voice"_s, u"-speed"_s, u"40"_s, u"--"_s });

    EXPECT_EQ(parts.options, (QStringList { u"-speed"_s }));
    EXPECT_EQ(parts.operands, (QStringList { u"--voice"_s, u"-speed"_s, u"40"_s, u"--"_s }));
    EXPECT_TRUE(parts.preferences.isEmpty());
}

} // namespace
} // namespace Orvello
