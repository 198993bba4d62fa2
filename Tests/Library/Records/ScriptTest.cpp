#include "Orvello/Library/Records/Script.h"
#include "Orvello/Library/Records/WelcomeScript.h"
#include "Tests/Support/FactsOf.h"

#include <QCryptographicHash>

#include <gtest/gtest.h>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;

TEST(ScriptTest, isCreatedWithAFreshIdAndOneDate)
{
    const Script script = Script::create(u"Title"_s, u"Body"_s, { 123.5 });

    EXPECT_FALSE(script.id.isNull());
    EXPECT_NE(script.id, Script::create(u"Title"_s, u"Body"_s, { 123.5 }).id);
    EXPECT_EQ(script.title, u"Title"_s);
    EXPECT_EQ(script.body, u"Body"_s);
    EXPECT_EQ(script.createdAt, Date { 123.5 });
    EXPECT_EQ(script.updatedAt, Date { 123.5 });
    EXPECT_EQ(script.slides, std::nullopt);
    EXPECT_EQ(script.deckSource, std::nullopt);
}

TEST(ScriptTest, isEqualFieldByField)
{
    Script script = Script::create(u"Title"_s, u"Body"_s, { 1 });
    script.slides = QList<SlideNote> { { 1, u"Intro"_s, u"Hello"_s }, { 2, std::nullopt, u""_s } };
    script.deckSource = u"talk.pptx"_s;
    const auto differsBy = [&script](auto change) {
        Script other = script;
        change(other);
        return !(other == script) && other != script;
    };

    EXPECT_EQ(Script(script), script);
    EXPECT_TRUE(differsBy([](Script& other) { other.id = QUuid::createUuid(); }));
    EXPECT_TRUE(differsBy([](Script& other) { other.title += u'x'; }));
    EXPECT_TRUE(differsBy([](Script& other) { other.body += u'x'; }));
    EXPECT_TRUE(differsBy([](Script& other) { other.createdAt = { 2 }; }));
    EXPECT_TRUE(differsBy([](Script& other) { other.updatedAt = { 2 }; }));
    EXPECT_TRUE(differsBy([](Script& other) { other.slides.reset(); }));
    EXPECT_TRUE(differsBy([](Script& other) { other.slides->removeLast(); }));
    EXPECT_TRUE(differsBy([](Script& other) { other.slides->first().index = 7; }));
    EXPECT_TRUE(differsBy([](Script& other) { other.slides->first().title.reset(); }));
    EXPECT_TRUE(differsBy([](Script& other) { other.slides->last().title = u""_s; }));
    EXPECT_TRUE(differsBy([](Script& other) { other.slides->last().notes = u"x"_s; }));
    EXPECT_TRUE(differsBy([](Script& other) { other.deckSource.reset(); }));
    EXPECT_TRUE(differsBy([](Script& other) { other.deckSource = u""_s; }));
}

TEST(JoinedBodyTest, headsEachSlidesNotesWithItsNumberAndTitle)
{
    EXPECT_EQ(joinedBody({ { 1, u"Intro"_s, u"Hello all"_s }, { 2, std::nullopt, u""_s } }),
        u"\u2014 Slide 1 \u00B7 Intro \u2014\nHello all\n\n\u2014 Slide 2 \u2014\n(no notes)"_s);
}

TEST(JoinedBodyTest, isEmptyWithoutSlides) { EXPECT_EQ(joinedBody({}), u""_s); }

TEST(JoinedBodyTest, leavesAnEmptyTitleOut)
{
    EXPECT_EQ(joinedBody({ { 3, u""_s, u"Notes"_s } }), u"\u2014 Slide 3 \u2014\nNotes"_s);
}

TEST(JoinedBodyTest, keepsTheGivenOrderAndNumbers)
{
    EXPECT_EQ(joinedBody({ { 20, u"B"_s, u"one\n\ntwo"_s }, { -1, u"A"_s, u"x"_s } }),
        u"\u2014 Slide 20 \u00B7 B \u2014\none\n\ntwo\n\n\u2014 Slide -1 \u00B7 A \u2014\nx"_s);
}

TEST(WelcomeScriptTest, hasItsExactTextsOnAMac)
{
    const QByteArray body = WelcomeScript::body(Testing::factsOfAMac()).toUtf8();

    EXPECT_EQ(WelcomeScript::title(), u"Welcome to Orvello"_s);
    EXPECT_EQ(body.size(), 824);
    EXPECT_EQ(QCryptographicHash::hash(body, QCryptographicHash::Sha256).toHex(),
        "7375112d0f7085fc781d866aef1e23043bd787327132fcc907b961943a1b3d87");
}

TEST(WelcomeScriptTest, promisesNothingThatALinuxDesktopDoesNotKeep)
{
    const QString body = WelcomeScript::body(Testing::factsOfALinuxDesktop());

    EXPECT_TRUE(body.contains(u"Press Alt+Super+P to start or pause scrolling. "
                              "Use Alt+Super+Up or Down"_s));
    EXPECT_TRUE(body.contains(u"from the tray, or with a right click on this panel"_s));
    EXPECT_TRUE(body.contains(u"This desktop cannot hide a window"_s));
    for (const auto* const untrue :
        { u"Option", u"Command", u"menu bar", u"invisible", u"Stealth" })
        EXPECT_FALSE(body.contains(QString::fromUtf16(untrue)))
            << QString::fromUtf16(untrue).toStdString();
}

TEST(WelcomeScriptTest, speaksOfStealthModeWhereverADesktopCanHideAWindow)
{
    Facts facts = Testing::factsOfALinuxDesktop();
    facts.canHideWindows = true;

    const QString body = WelcomeScript::body(facts);

    EXPECT_TRUE(body.contains(u"With Stealth Mode on, this window is invisible"_s));
    EXPECT_FALSE(body.contains(u"cannot hide"_s));
}

TEST(WelcomeScriptTest, promisesNoMoreThanIsKnownWhereCapturesMayShowWhatIsHidden)
{
    Facts facts = Testing::factsOfAMac();
    facts.capturesMayShowHidden = true;

    const QString body = WelcomeScript::body(facts);

    EXPECT_TRUE(body.contains(u"Newer recorders may show it all the same"_s));
    EXPECT_TRUE(body.contains(u"Leave Stealth Mode alone while you share"_s));
    EXPECT_FALSE(body.contains(u"invisible"_s));
}

} // namespace
} // namespace Orvello
