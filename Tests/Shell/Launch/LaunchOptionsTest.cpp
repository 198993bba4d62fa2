#include "Orvello/Shell/Launch/LaunchOptions.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;
using ::testing::ElementsAre;

TEST(LaunchOptionsTest, knowsEachSwitch)
{
    const auto with = [](const QString& argument) {
        return LaunchOptions::fromArguments({ u"-speed"_s, u"40"_s, argument });
    };

    EXPECT_TRUE(with(u"--help"_s).help);
    EXPECT_TRUE(with(u"--version"_s).version);
    EXPECT_TRUE(with(u"--no-stealth"_s).noStealth);
    EXPECT_TRUE(with(u"--onboarding"_s).onboarding);
    EXPECT_TRUE(with(u"--check-updates"_s).checkUpdates);
    EXPECT_TRUE(with(u"--voice"_s).voice);
    EXPECT_TRUE(with(u"--autostart"_s).autostart);
}

TEST(LaunchOptionsTest, asksForNothingByItself)
{
    const LaunchOptions options = LaunchOptions::fromArguments({ u"--voice=1"_s, u"-voice"_s });

    EXPECT_FALSE(options.help || options.version || options.noStealth || options.onboarding
        || options.checkUpdates || options.voice || options.autostart);
    EXPECT_TRUE(options.urls.isEmpty());
}

TEST(LaunchOptionsTest, tellsOfEachSwitchAndVariableInTheHelp)
{
    for (const QString& name : { u"--help"_s, u"--version"_s, u"--no-stealth"_s, u"--onboarding"_s,
             u"--check-updates"_s, u"--voice"_s, u"--autostart"_s, u"ORVELLO_IMPORT_PPTX"_s,
             u"ORVELLO_ONBOARDING_PAGE"_s, u"ORVELLO_STEALTH"_s, u"SIGUSR1"_s, u"SIGUSR2"_s })
        EXPECT_TRUE(LaunchOptions::helpText().contains(name)) << qPrintable(name);
}

TEST(LaunchOptionsTest, takesAddressesThatAreNoValues)
{
    EXPECT_THAT(
        LaunchOptions::fromArguments({ u"orvello:one"_s, u"--voice"_s, u"-OrvelloAppcastURL"_s,
                                         u"https://example.com/feed"_s, u"orvello://two"_s })
            .urls,
        ElementsAre(QUrl(u"orvello:one"_s), QUrl(u"orvello://two"_s)));
}

TEST(LaunchOptionsTest, takesNoFileForAnAddress)
{
    EXPECT_TRUE(
        LaunchOptions::fromArguments({ u"talk.pptx"_s, u"/tmp/a:b"_s, u"12:30"_s, u":x"_s, u""_s })
            .urls.isEmpty());
}

} // namespace
} // namespace Orvello
