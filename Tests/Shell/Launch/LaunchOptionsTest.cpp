#include "Orvello/Shell/Launch/LaunchOptions.h"

#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class LaunchOptionsTest : public ::testing::Test {
protected:
    LaunchOptions of(const QStringList& arguments) const
    {
        return LaunchOptions::of({ arguments, folder.path(), {} });
    }

    void makeFile(const QString& name) const
    {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    }

    const QTemporaryDir folder; ///< Where the program is started.
};

TEST_F(LaunchOptionsTest, knowsEachSwitch)
{
    const auto with = [this](const QString& argument) {
        return of({ u"-speed"_s, u"40"_s, argument });
    };

    EXPECT_TRUE(with(u"--help"_s).help);
    EXPECT_TRUE(with(u"--version"_s).version);
    EXPECT_TRUE(with(u"--no-stealth"_s).noStealth);
    EXPECT_TRUE(with(u"--onboarding"_s).onboarding);
    EXPECT_TRUE(with(u"--check-updates"_s).checkUpdates);
    EXPECT_TRUE(with(u"--voice"_s).voice);
    EXPECT_TRUE(with(u"--autostart"_s).autostart);
    EXPECT_TRUE(with(u"--scripts"_s).scripts);
    EXPECT_TRUE(with(u"--settings"_s).settings);
    EXPECT_TRUE(with(u"--toggle"_s).toggle);
}

TEST_F(LaunchOptionsTest, findsFaultWithAnOptionThatLacksADashBeforeAFile)
{
    makeFile(u"talk.pptx"_s);

    const LaunchOptions options = of({ u"-voice"_s, u"talk.pptx"_s, u"-speed"_s, u"40"_s });

    EXPECT_THAT(options.mistakes, ElementsAre(u"unknown option -voice; did you mean --voice?"_s));
}

TEST_F(LaunchOptionsTest, asksForNothingByItself) { EXPECT_EQ(of({}), LaunchOptions()); }

TEST_F(LaunchOptionsTest, findsFaultWithAnUnknownOptionAndSuggestsTheNearest)
{
    const LaunchOptions options = of({ u"--voice=1"_s, u"-voice"_s, u"--frobnicate"_s });

    EXPECT_FALSE(options.voice);
    EXPECT_THAT(options.mistakes,
        ElementsAre(u"unknown option --voice=1; did you mean --voice?"_s,
            u"unknown option -voice; did you mean --voice?"_s, u"unknown option --frobnicate"_s));
}

TEST_F(LaunchOptionsTest, findsFaultWithAPreferenceWithoutAValue)
{
    EXPECT_THAT(of({ u"-fontSize"_s, u"--voice"_s }).mistakes,
        ElementsAre(u"-fontSize is neither an option nor a preference with a value"_s));
}

TEST_F(LaunchOptionsTest, takesPairsForPreferences)
{
    const LaunchOptions options = of({ u"-speed"_s, u"40"_s, u"-textColorName"_s, u"Yellow"_s });

    EXPECT_EQ(options.preferences,
        (QVariantMap { { u"speed"_s, u"40"_s }, { u"textColorName"_s, u"Yellow"_s } }));
    EXPECT_THAT(options.mistakes, IsEmpty());
}

TEST_F(LaunchOptionsTest, takesDecksByTheirPathsAndAddresses)
{
    makeFile(u"talk.pptx"_s);
    makeFile(u"Große Reden.PPTX"_s);
    const QString talk = folder.filePath(u"talk.pptx"_s);

    const LaunchOptions options = of({ u"talk.pptx"_s, u"./talk.pptx"_s, talk,
        QUrl::fromLocalFile(talk).toString(), u"file://localhost"_s + talk,
        QUrl::fromLocalFile(folder.filePath(u"Große Reden.PPTX"_s)).toString(QUrl::FullyEncoded) });

    EXPECT_THAT(options.files,
        ElementsAre(talk, talk, talk, talk, talk, folder.filePath(u"Große Reden.PPTX"_s)));
    EXPECT_THAT(options.mistakes, IsEmpty());
}

TEST_F(LaunchOptionsTest, takesAFileForAFileWhateverItLooksLike)
{
    makeFile(u"talk:2.pptx"_s);
    makeFile(u"--voice.pptx"_s);

    const LaunchOptions options = of({ u"talk:2.pptx"_s, u"--"_s, u"--voice.pptx"_s });

    EXPECT_THAT(options.files,
        ElementsAre(folder.filePath(u"talk:2.pptx"_s), folder.filePath(u"--voice.pptx"_s)));
    EXPECT_THAT(options.mistakes, IsEmpty());
}

TEST_F(LaunchOptionsTest, findsFaultWithWhatIsNoDeck)
{
    makeFile(u"notes.txt"_s);

    const LaunchOptions options = of({ u"notes.txt"_s, u"gone.pptx"_s, u""_s, u"-"_s, u"12:30"_s,
        u"https://example.com/talk.pptx"_s, u"file://server/talk.pptx"_s });

    EXPECT_THAT(options.files, IsEmpty());
    EXPECT_THAT(options.mistakes,
        ElementsAre(u"notes.txt is not a deck (.pptx or .odp)"_s,
            u"there is no file \"gone.pptx\""_s, u"there is no file \"\""_s,
            u"there is no file \"-\""_s, u"there is no file \"12:30\""_s,
            u"https://example.com/talk.pptx is no address that Orvello opens"_s,
            u"file://server/talk.pptx is no address that Orvello opens"_s));
}

TEST_F(LaunchOptionsTest, takesItsOwnAddressesThatAreNoValues)
{
    EXPECT_THAT(of({ u"orvello:one"_s, u"--voice"_s, u"-OrvelloAppcastURL"_s,
                       u"https://example.com/feed"_s, u"orvello://two"_s })
                    .urls,
        ElementsAre(QUrl(u"orvello:one"_s), QUrl(u"orvello://two"_s)));
}

TEST_F(LaunchOptionsTest, findsTheDeckOfTheVariableInTheFolderOfTheStart)
{
    const LaunchOptions options = LaunchOptions::of(
        { {}, u"/home/ada"_s, { { u"ORVELLO_IMPORT_PPTX"_s, u"talks/talk.pptx"_s } } });

    EXPECT_EQ(options.importedPath, u"/home/ada/talks/talk.pptx");
}

TEST_F(LaunchOptionsTest, remembersTheProductsVariablesOfItsStart)
{
    qputenv("ORVELLO_STEALTH", "flag");

    const ProgramStart start = LaunchOptions::thisStart({ u"--voice"_s });
    qunsetenv("ORVELLO_STEALTH");

    EXPECT_EQ(start.arguments, QStringList { u"--voice"_s });
    EXPECT_EQ(start.directory, QDir::currentPath());
    EXPECT_EQ(start.environment, (QVariantMap { { u"ORVELLO_STEALTH"_s, u"flag"_s } }));
}

} // namespace
} // namespace Orvello
