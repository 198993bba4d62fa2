#include "Orvello/Shell/Windows/QtMenu.h"

#include "Orvello/Shell/Commands/Menu.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;

/// Says something else each time it opens.
class CountingMenu final : public Menu {
public:
    CountingMenu()
    {
        addItem(u"Opened 0"_s, [this] { ++chosen; });
        addSeparator();
        addSwitch(u"Switch"_s, [this] { ++chosen; });
        Menu& help = addSubmenu(u"Help"_s);
        help.addItem(u"Version"_s, {});
        addItem(u"Quit"_s, [this] { ++chosen; }).keyEquivalent = u"q"_s;
        addItem(u"Redo"_s, [] {}).keyEquivalent = u"Z"_s;
    }
    void needsUpdate() override
    {
        items()[0]->title = u"Opened %1"_s.arg(++opened);
        items()[2]->isChecked = opened == 1;
    }

    int opened = 0;
    int chosen = 0;
};

class QtMenuTest : public ::testing::Test {
protected:
    /// What whoever shows the menu does right before it opens, be it on a bus.
    void open() { Q_EMIT shown.aboutToShow(); }
    QAction& line(qsizetype number) const { return *shown.actions().at(number); }

    CountingMenu menu;
    QtMenu shown { menu };
};

TEST_F(QtMenuTest, hasEveryLine)
{
    ASSERT_EQ(shown.actions().size(), 6);
    EXPECT_EQ(line(0).text(), u"Opened 0");
    EXPECT_TRUE(line(1).isSeparator());
    EXPECT_TRUE(line(2).isCheckable());
    EXPECT_FALSE(line(0).isCheckable());
    ASSERT_NE(line(3).menu(), nullptr);
    EXPECT_EQ(line(3).text(), u"Help");
    EXPECT_EQ(line(3).menu()->actions().at(0)->text(), u"Version");
    EXPECT_FALSE(line(3).menu()->actions().at(0)->isEnabled());
    EXPECT_EQ(line(4).shortcut(), QKeySequence(u"Ctrl+Q"_s));
    EXPECT_EQ(line(5).shortcut(), QKeySequence(u"Ctrl+Shift+Z"_s));
}

TEST_F(QtMenuTest, followsTheMenuEachTimeItOpens)
{
    open();
    EXPECT_EQ(line(0).text(), u"Opened 1");
    EXPECT_TRUE(line(2).isChecked());

    open();
    EXPECT_EQ(line(0).text(), u"Opened 2");
    EXPECT_FALSE(line(2).isChecked());
    EXPECT_EQ(menu.opened, 2);
}

TEST_F(QtMenuTest, runsTheLineThatIsChosen)
{
    line(0).trigger();
    line(2).trigger();
    line(4).trigger();

    EXPECT_EQ(menu.chosen, 3);
}

TEST_F(QtMenuTest, neverGuessesTheRoleOfALine)
{
    for (const QAction* const action : shown.actions()) {
        const bool hasRole = action->menuRole() != QAction::NoRole;
        EXPECT_FALSE(hasRole && !action->isSeparator() && !action->menu())
            << qPrintable(action->text());
    }
}

} // namespace
} // namespace Orvello
