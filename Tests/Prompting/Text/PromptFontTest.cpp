#include "Orvello/Prompting/Text/PromptFont.h"

#include <QFile>
#include <QFontDatabase>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;

const QString shipped = u":/Orvello/Fonts/Quicksand-Bold.ttf"_s;

TEST(PromptFontTest, isTheFirstFaceThatCanBeLoaded)
{
    QTemporaryDir folder;
    const QString noFont = folder.filePath(u"SFNSRounded.ttf"_s);
    QFile file(noFont);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("no font");
    file.close();

    EXPECT_EQ(
        PromptFont::familyOf({ folder.filePath(u"gone.ttf"_s), noFont, shipped }), u"Quicksand"_s);
}

TEST(PromptFontTest, asksForNoFamilyWhereThereIsNoFace)
{
    EXPECT_EQ(PromptFont::familyOf({ u"/nowhere.ttf"_s }), QString());
}

TEST(PromptFontTest, isAFamilyThatThereIs)
{
    const QString family = PromptFont::family();

    EXPECT_TRUE(
        QFontDatabase::families().contains(family) || QFontDatabase::isPrivateFamily(family))
        << family.toStdString();
}

} // namespace
} // namespace Orvello
