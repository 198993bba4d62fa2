#include "Orvello/Shell/Windows/SystemPalette.h"

#include "Orvello/Shell/Views/Symbol.h"
#include "Tests/Support/EventLoop.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPalette>
#include <QQuickWindow>

#include <gtest/gtest.h>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;

class SystemPaletteTest : public ::testing::Test {
protected:
    ~SystemPaletteTest() override { QGuiApplication::setPalette(before); }

    QColor color(const char* role, const char* group = nullptr)
    {
        auto* colors = window.property("palette").value<QObject*>();
        if (group)
            colors = colors->property(group).value<QObject*>();
        return colors->property(role).value<QColor>();
    }

    const QPalette before = QGuiApplication::palette();
    QQuickWindow window;
};

TEST_F(SystemPaletteTest, givesAWindowTheColoursOfTheDesktop)
{
    QPalette desktop(Qt::darkBlue, Qt::darkGray);
    desktop.setColor(QPalette::Base, Qt::darkGreen);
    desktop.setColor(QPalette::Disabled, QPalette::WindowText, Qt::magenta);
    QGuiApplication::setPalette(desktop);

    followSystemPalette(window);

    EXPECT_EQ(color("window"), desktop.color(QPalette::Window));
    EXPECT_EQ(color("base"), desktop.color(QPalette::Base));
    EXPECT_EQ(color("button"), desktop.color(QPalette::Button));
    EXPECT_EQ(color("windowText", "disabled"), QColor(Qt::magenta));
    EXPECT_EQ(window.color(), desktop.color(QPalette::Window));
}

TEST_F(SystemPaletteTest, followsTheDesktopWhenItTurnsDark)
{
    QGuiApplication::setPalette(QPalette(Qt::lightGray));
    followSystemPalette(window);

    QGuiApplication::setPalette(QPalette(QColor(40, 40, 40)));
    Testing::drainEvents();

    EXPECT_EQ(color("window"), QColor(40, 40, 40));
    EXPECT_EQ(window.color(), QColor(40, 40, 40));
}

TEST_F(SystemPaletteTest, keepsColoursThatAreReadable)
{
    QPalette desktop(Qt::lightGray);
    desktop.setColor(QPalette::Highlight, QColor(0, 0, 120));
    desktop.setColor(QPalette::HighlightedText, Qt::white);
    QGuiApplication::setPalette(desktop);

    followSystemPalette(window);

    EXPECT_EQ(color("highlight"), QColor(0, 0, 120));
    EXPECT_EQ(color("highlightedText"), QColor(Qt::white));
}

TEST_F(SystemPaletteTest, makesFaintColoursReadable)
{
    QPalette desktop(Qt::lightGray);
    desktop.setColor(QPalette::Base, Qt::white);
    desktop.setColor(QPalette::PlaceholderText, QColor(0, 0, 0, 60));
    desktop.setColor(QPalette::Highlight, QColor(120, 190, 255));
    desktop.setColor(QPalette::HighlightedText, Qt::white);
    QGuiApplication::setPalette(desktop);

    followSystemPalette(window);

    // 4.5 to 1 against white is a luminance of 0.183: a grey of at most 118.
    EXPECT_LE(color("placeholderText").red(), 118);
    EXPECT_EQ(color("placeholderText").alpha(), 255);
    EXPECT_LT(color("highlight").lightnessF(), QColor(120, 190, 255).lightnessF() - 0.2);
    EXPECT_GT(color("highlight").blue(), color("highlight").red());
}

TEST(SymbolTest, drawsWhatItsNameSays)
{
    const auto drawn = [](const QString& name) {
        QImage image(32, 32, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        Symbol symbol;
        symbol.setSize(QSizeF(32, 32));
        symbol.setProperty("name", name);
        symbol.paint(&painter);
        return image;
    };
    const QImage nothing = drawn(u"no such symbol"_s);
    const QList<QImage> all { drawn(u"plus"_s), drawn(u"minus"_s),
        drawn(u"rectangle.on.rectangle"_s), drawn(u"square.and.arrow.down"_s), nothing };

    for (qsizetype i = 0; i < all.size(); ++i) {
        for (qsizetype j = 0; j < i; ++j)
            EXPECT_NE(all[i], all[j]) << i << " and " << j;
    }
    EXPECT_EQ(nothing.pixel(16, 16), 0u);
    EXPECT_EQ(all.first().pixelColor(16, 16), QColor(Qt::white)); // The file has it in black.
}

} // namespace
} // namespace Orvello
