#include "Orvello/Shell/Commands/MainMenu.h"

#include <QGuiApplication>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;
using ::testing::ElementsAre;

TEST(MainMenuTest, holdsTheEditingCommandsAlone)
{
    const std::unique_ptr<Menu> mainMenu = makeMainMenu([](const char*) {});

    ASSERT_EQ(mainMenu->items().size(), 1U);
    const Menu& edit = *mainMenu->items()[0]->submenu;
    EXPECT_EQ(edit.title(), u"Edit");
    QStringList lines;
    for (const auto& item : edit.items())
        lines.append(item->title + u'=' + item->keyEquivalent);
    EXPECT_THAT(lines,
        ElementsAre(u"Undo=z"_s, u"Redo=Z"_s, u"="_s, u"Cut=x"_s, u"Copy=c"_s, u"Paste=v"_s,
            u"Select All=a"_s));
    EXPECT_TRUE(edit.items()[2]->isSeparator());
}

TEST(MainMenuTest, sendsTheCommandsToWhateverHasTheKeyboard)
{
    QStringList sent;
    const std::unique_ptr<Menu> mainMenu
        = makeMainMenu([&](const char* command) { sent.append(QString::fromLatin1(command)); });

    for (const auto& item : mainMenu->items()[0]->submenu->items()) {
        if (item->action)
            item->action();
    }

    EXPECT_THAT(
        sent, ElementsAre(u"undo"_s, u"redo"_s, u"cut"_s, u"copy"_s, u"paste"_s, u"selectAll"_s));
}

TEST(MainMenuTest, survivesThatNothingHasTheKeyboard)
{
    ASSERT_EQ(QGuiApplication::focusObject(), nullptr);

    sendToFocusObject("selectAll");
}

} // namespace
} // namespace Orvello
