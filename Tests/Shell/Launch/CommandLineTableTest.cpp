#include "Orvello/Shell/Launch/CommandLineTable.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;

TEST(CommandLineTableTest, tellsOfEachOptionVariableSignalAndStatusInTheHelp)
{
    const QString help = CommandLineTable::helpText();

    for (const QString& line :
        { u"\n  FILE  a deck"_s, u"\n  --autostart      start scrolling after the countdown\n"_s,
            u"\n  --check-updates  "_s, u"\n  --no-stealth "_s, u"\n  --onboarding "_s,
            u"\n  --scripts "_s, u"\n  --settings "_s, u"\n  --toggle "_s, u"\n  --voice "_s,
            u"\n  --help "_s, u"\n  --version "_s, u"\n  -Key value "_s,
            u"\n  ORVELLO_IMPORT_PPTX "_s, u"\n  ORVELLO_ONBOARDING_PAGE "_s,
            u"\n  ORVELLO_RENDERER "_s, u"\n  ORVELLO_STEALTH "_s, u"\n  SIGUSR1 "_s,
            u"\n  SIGUSR2 "_s, u"\n  SIGTERM, SIGINT, SIGHUP "_s, u"\nExit status:\n  0  "_s,
            u"\n  3  "_s })
        EXPECT_TRUE(help.contains(line)) << qPrintable(line);
}

TEST(CommandLineTableTest, fitsATerminal)
{
    for (const QString& line : CommandLineTable::helpText().split(u'\n'))
        EXPECT_LE(line.size(), 80) << qPrintable(line);
}

TEST(CommandLineTableTest, suggestsTheOptionThatAMistypedOneIsMostLike)
{
    EXPECT_EQ(CommandLineTable::nearestOption(u"--autostrat"_s), u"--autostart"_s);
    EXPECT_EQ(CommandLineTable::nearestOption(u"--Voice"_s), u"--voice"_s);
    EXPECT_EQ(CommandLineTable::nearestOption(u"-voice"_s), u"--voice"_s);
    EXPECT_EQ(CommandLineTable::nearestOption(u"--voice=1"_s), u"--voice"_s);
    EXPECT_EQ(CommandLineTable::nearestOption(u"--setting"_s), u"--settings"_s);
    EXPECT_EQ(CommandLineTable::nearestOption(u"--check"_s), u"--check-updates"_s);
    EXPECT_EQ(CommandLineTable::nearestOption(u"--nostealth"_s), u"--no-stealth"_s);
}

TEST(CommandLineTableTest, suggestsNothingForWhatIsLikeNoOption)
{
    for (const QString& strange : { u"--print"_s, u"--frobnicate"_s, u"--x"_s, u"--"_s, u"-"_s })
        EXPECT_EQ(CommandLineTable::nearestOption(strange), QString()) << qPrintable(strange);
}

} // namespace
} // namespace Orvello
