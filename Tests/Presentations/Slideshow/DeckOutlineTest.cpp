#include "Orvello/Presentations/Slideshow/DeckOutline.h"

#include "Orvello/Library/Records/Script.h"

#include <gtest/gtest.h>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;
using Kind = DeckLikeness::Kind;

/// A script made from a deck whose slides have these titles.
Script script(const QString& title, const QString& source, const QStringList& titles)
{
    QList<SlideNote> slides;
    for (const QString& text : titles)
        slides.append(
            { slides.size() + 1, text.isEmpty() ? std::nullopt : std::optional(text), u"notes"_s });
    Script script = Script::create(title, joinedBody(slides), {});
    script.slides = slides;
    script.deckSource = source;
    return script;
}

const QStringList talk { u"Welcome"_s, u"Results"_s, QString(), u"Questions"_s };
const Script talkScript = script(u"Talk"_s, u"Talk.pptx"_s, talk);

Kind kindOf(const Script& script, const DeckOutline& deck)
{
    return DeckLikeness::of(script, deck).kind;
}

TEST(DeckOutlineTest, readsNameAndTitles)
{
    EXPECT_EQ(DeckOutline::parse(u"Talk\x1eWelcome \x1f\x1e\x1f\x1e"
                                 "End\n"_s),
        (DeckOutline { u"Talk"_s, { u"Welcome"_s, QString(), u"End"_s } }));
    EXPECT_EQ(DeckOutline::parse(u"Talk.key\n"_s), (DeckOutline { u"Talk.key"_s, {} }));
    EXPECT_EQ(DeckOutline::parse(QString()), DeckOutline());
}

TEST(DeckLikenessTest, knowsTheDeckByNameAndTitles)
{
    EXPECT_EQ(kindOf(talkScript, { u"Talk"_s, talk }), Kind::Same);
    EXPECT_EQ(kindOf(talkScript, { u"Talk.pptx"_s, talk }), Kind::Same);
    EXPECT_EQ(
        kindOf(script(u"My own words"_s, u"Talk.pptx"_s, talk), { u"Talk"_s, talk }), Kind::Same);
    EXPECT_EQ(kindOf(script(u"Talk"_s, u"Impress"_s, talk), { u"Talk"_s, talk }), Kind::Same);
}

TEST(DeckLikenessTest, knowsACopyByItsTitles)
{
    EXPECT_EQ(kindOf(talkScript, { u"Talk, final"_s, talk }), Kind::Alike);
    EXPECT_EQ(kindOf(talkScript,
                  { u"Talk, final"_s, { u"Welcome"_s, u"  The\nresults"_s, u"Questions"_s } }),
        Kind::Alike);
}

TEST(DeckLikenessTest, allowsForEditsOfTheDeckItself)
{
    QStringList grown = talk;
    for (int slide = 0; slide < 20; ++slide)
        grown.append(u"New %1"_s.arg(slide));

    EXPECT_EQ(kindOf(talkScript, { u"Talk"_s, grown }), Kind::Same);
    EXPECT_EQ(kindOf(talkScript, { u"Another talk"_s, grown }), Kind::Other);
}

TEST(DeckLikenessTest, isNotFooledByASharedTitleOrName)
{
    EXPECT_EQ(
        kindOf(talkScript, { u"Budget"_s, { u"Costs"_s, u"Income"_s, u"Plan"_s, u"Questions"_s } }),
        Kind::Other);
    EXPECT_EQ(kindOf(talkScript, { u"Talk"_s, { u"Costs"_s, u"Income"_s } }), Kind::Other);
}

TEST(DeckLikenessTest, countsATitleAsOftenAsItOccurs)
{
    const Script twice = script(u"Talk"_s, u"Talk.pptx"_s, { u"More"_s, u"End"_s });

    EXPECT_EQ(kindOf(twice, { u"Budget"_s, { u"More"_s, u"More"_s, u"More"_s, u"More"_s } }),
        Kind::Other);
}

TEST(DeckLikenessTest, leavesOpenWhatCannotBeTold)
{
    const QStringList untold(4);

    EXPECT_EQ(kindOf(talkScript, { u"Talk"_s, untold }), Kind::Same);
    EXPECT_EQ(kindOf(talkScript, { u"Budget"_s, untold }), Kind::Unknown);
    EXPECT_EQ(kindOf(talkScript, { u"Budget"_s, {} }), Kind::Unknown);
    EXPECT_EQ(kindOf(talkScript, { u"Budget"_s, QStringList(5) }), Kind::Other);
    EXPECT_EQ(kindOf(script(u"Notes"_s, u"Impress"_s, untold), { u"Talk"_s, talk }), Kind::Unknown);
}

TEST(DeckLikenessTest, isNoneOfATypedScript)
{
    EXPECT_EQ(kindOf(Script::create(u"Talk"_s, u"Text"_s, {}), { u"Talk"_s, talk }), Kind::Other);
}

} // namespace
} // namespace Orvello
