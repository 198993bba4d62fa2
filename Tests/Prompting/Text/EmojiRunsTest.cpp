#include "Orvello/Prompting/Text/EmojiRuns.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;

QStringList runsOf(const QString& text)
{
    QStringList runs;
    for (const auto& [start, length] : EmojiRuns::in(text))
        runs.append(text.mid(start, length));
    return runs;
}

TEST(EmojiRunsTest, leavesSignsThatAreTextAlone)
{
    EXPECT_EQ(runsOf(u"▪ ✔ ✖ ⚠ ♥ ▶ ➡ © 1 # 3⃣ and words"_s), QStringList());
    EXPECT_EQ(runsOf(QString()), QStringList());
}

TEST(EmojiRunsTest, takesWhatASelectorAsksFor)
{
    EXPECT_EQ(runsOf(u"I ❤\uFE0F you ❤ 1\uFE0F⃣"_s), QStringList({ u"❤\uFE0F"_s, u"1\uFE0F⃣"_s }));
    EXPECT_EQ(runsOf(u"⌚\uFE0E and ⌚ and 😀\uFE0E"_s), QStringList({ u"⌚"_s }));
}

TEST(EmojiRunsTest, keepsSequencesTogether)
{
    for (const QString& sequence :
        { u"👋🏽"_s, u"👨‍👩‍👧‍👦"_s, u"🇩🇪"_s, u"❤\uFE0F‍🔥"_s,
            u"🏴‍☠\uFE0F"_s, u"👩‍⚕"_s, u"🏴󠁧󠁢󠁷󠁬󠁳󠁿"_s })
        EXPECT_EQ(runsOf(u"a "_s + sequence + u" b"_s), QStringList({ sequence }));
    EXPECT_EQ(runsOf(u"🎉🎉 🎉"_s), QStringList({ u"🎉🎉"_s, u"🎉"_s }));
}

TEST(EmojiRunsTest, survivesHalvesOfCharacters)
{
    EXPECT_EQ(runsOf(QString(QChar(0xD83D))), QStringList());
    EXPECT_EQ(runsOf(QString(QChar(0xDE00)) + u"a"_s), QStringList());
    EXPECT_EQ(runsOf(u"\uFE0F"_s), QStringList());
}

} // namespace
} // namespace Orvello
