#include "Orvello/Shell/Windows/QtStatusItem.h"

#include "Orvello/Shell/Commands/Menu.h"
#include "Orvello/Shell/Commands/MenuBar.h"
#include "Orvello/Shell/Windows/Branding.h"
#include "Tests/Support/FakePlatform.h"
#include "Tests/Support/LogCapture.h"

#include <QApplication>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::StartsWith;

class QtStatusItemTest : public ::testing::Test {
protected:
    QtStatusItemTest()
    {
        menu.addItem(u"Line"_s, [] {});
    }

    static bool isMenuOpen() { return QApplication::activePopupWidget() != nullptr; }

    Testing::LogCapture log;
    Testing::FakeStatusBar bar;
    Menu menu;
};

TEST_F(QtStatusItemTest, waitsForABar)
{
    const QtStatusItem item(bar, menu);
    EXPECT_THAT(log.lines(), IsEmpty());

    bar.tell(true);

    EXPECT_THAT(log.lines(), ElementsAre("TRAY status item shown"));
}

TEST_F(QtStatusItemTest, saysHowToOpenTheMenuWithoutABar)
{
    const QtStatusItem item(bar, menu);

    bar.tell(false);
    EXPECT_THAT(log.lines(), ElementsAre(StartsWith("TRAY this desktop shows no status items")));

    bar.tell(true);
    EXPECT_EQ(log.lines().back(), "TRAY status item shown");
}

TEST_F(QtStatusItemTest, isMadeOnceHoweverOftenTheBarComes)
{
    const QtStatusItem item(bar, menu);

    bar.tell(true);
    bar.tell(false);
    bar.tell(true);

    EXPECT_EQ(std::ranges::count(log.lines(), "TRAY status item shown"), 1);
}

TEST_F(QtStatusItemTest, opensItsMenuWithOrWithoutABar)
{
    QtStatusItem item(bar, menu);

    item.openMenu();

    ASSERT_TRUE(isMenuOpen());
    QApplication::activePopupWidget()->close();
}

/// Gives away an item and remembers what it was asked for.
class FakeMenuBar final : public MenuBar {
public:
    class Item final : public StatusItem {
        void openMenu() override { }
    };

    void setMainMenu(std::unique_ptr<Menu>) override { }
    std::unique_ptr<StatusItem> makeStatusItem(
        Menu& menu, const QIcon& itemGlyph, const QString& itemDescription) override
    {
        menuOfItem = &menu;
        glyph = itemGlyph;
        description = itemDescription;
        auto made = std::make_unique<Item>();
        item = made.get();
        return made;
    }

    const Menu* menuOfItem = nullptr;
    QIcon glyph;
    QString description;
    const StatusItem* item = nullptr;
};

TEST_F(QtStatusItemTest, leavesTheItemToAMenuBar)
{
    FakeMenuBar menuBar;
    bar.menuBarFake = &menuBar;

    const std::unique_ptr<StatusItem> item = statusItemIn(bar, menu);

    EXPECT_EQ(item.get(), menuBar.item);
    EXPECT_EQ(menuBar.menuOfItem, &menu);
    EXPECT_TRUE(menuBar.glyph.isMask());
    EXPECT_EQ(menuBar.description, u"Orvello");
    EXPECT_THAT(log.lines(), IsEmpty());
}

TEST_F(QtStatusItemTest, isTheItemOfOtherBars)
{
    const std::unique_ptr<StatusItem> item = statusItemIn(bar, menu);
    bar.tell(true);

    EXPECT_THAT(log.lines(), ElementsAre("TRAY status item shown"));
}

TEST_F(QtStatusItemTest, survivesABarThatSpeaksAfterItsEnd)
{
    {
        const QtStatusItem item(bar, menu);
    }

    bar.tell(true);

    EXPECT_THAT(log.lines(), IsEmpty());
}

TEST(BrandingTest, drawsTheGlyphForMenuBarsThatColourIt)
{
    const QIcon glyph = Branding::menuBarGlyph();

    EXPECT_TRUE(glyph.isMask());
    EXPECT_TRUE(glyph.availableSizes().contains(QSize(18, 18)));
    const QImage drawn = glyph.pixmap(18).toImage();
    EXPECT_GT(drawn.pixelColor(9, 9).alpha(), 200) << "a line of text";
    EXPECT_EQ(drawn.pixelColor(0, 0).alpha(), 0);
}

TEST(BrandingTest, hasAnIconForWindowsAndTrays)
{
    EXPECT_FALSE(Branding::appIcon().pixmap(64).isNull());
    EXPECT_FALSE(Branding::trayIcon().pixmap(22).isNull());
}

} // namespace
} // namespace Orvello
