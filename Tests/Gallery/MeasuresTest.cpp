#include "Tests/Gallery/Measures.h"

#include "Tests/Gallery/Scenes.h"

#include <QPainter>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace Orvello::Gallery {
namespace {

using namespace Qt::StringLiterals;
using ::testing::Contains;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

/// Scenes as they are, and with one thing wrong with each.
class MeasuresTest : public ::testing::Test {
protected:
    void show(const QString& name)
    {
        const Scenes scenes = windowScenes();
        const auto scene = std::ranges::find(scenes, u"Prompter: "_s + name, &Scene::name);
        ASSERT_NE(scene, scenes.end()) << name.toStdString();
        stage = scene->make();
        window().show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window()));
        stage->play();
        QTest::qWait(150);
        picture = window().grabWindow().convertToFormat(QImage::Format_ARGB32);
        EXPECT_THAT(faults(), IsEmpty()) << "before anything is wrong";
    }

    QQuickWindow& window() const { return stage->window(); }

    std::vector<std::string> faults() const
    {
        std::vector<std::string> result;
        for (const QString& fault : faultsOf(window(), picture))
            result.push_back(fault.toStdString());
        return result;
    }

    void cover(const QRect& area)
    {
        QPainter painter(&picture);
        painter.setCompositionMode(QPainter::CompositionMode_Source);
        painter.fillRect(area, QColor(0, 0, 0, 184));
    }

    /// The first one of that class that is visible.
    QQuickItem& item(const char* className) const
    {
        QQuickItem* const found = visibleItem(*window().contentItem(), className);
        EXPECT_TRUE(found) << className;
        return *found;
    }

    static QQuickItem* visibleItem(const QQuickItem& parent, const char* className)
    {
        for (QQuickItem* const child : parent.childItems()) {
            if (!child->isVisible() || child->opacity() == 0)
                continue;
            if (QByteArrayView(child->metaObject()->className()).startsWith(className))
                return child;
            if (QQuickItem* const found = visibleItem(*child, className))
                return found;
        }
        return nullptr;
    }

    std::unique_ptr<Stage> stage;
    QImage picture;
};

TEST_F(MeasuresTest, missesALine)
{
    show(u"paused"_s);

    cover({ 0, 80, 720, 40 });

    EXPECT_THAT(faults(), Contains(HasSubstr("no ink where the line \"what we learned")));
}

TEST_F(MeasuresTest, missesTheWordsOfABadge)
{
    show(u"paused"_s);

    cover({ 0, 170, 120, 30 });

    EXPECT_THAT(faults(), Contains(HasSubstr("no ink of the colour #8cffffff")));
}

TEST_F(MeasuresTest, seesAWrongColour)
{
    show(u"outlined letters"_s);

    picture = std::move(picture).rgbSwapped();

    EXPECT_THAT(faults(), Contains(HasSubstr("no ink where the line")));
}

TEST_F(MeasuresTest, seesALineAtTheWrongSide)
{
    show(u"Hebrew and Latin"_s);

    QImage moved(picture.size(), picture.format());
    moved.fill(QColor(0, 0, 0, 184));
    QPainter(&moved).drawImage(-120, 0, picture);
    picture = moved;

    EXPECT_THAT(faults(), Contains(HasSubstr("does not begin at the right")));
}

TEST_F(MeasuresTest, seesSignsThatNoFontHas)
{
    show(u"paused"_s);

    QQuickItem& label = item("SmallLabel_");
    label.setProperty("text", u"\U0010FFFD"_s);

    EXPECT_THAT(faults(), Contains(HasSubstr("no font has 1 signs")));
}

TEST_F(MeasuresTest, seesBadgesOverEachOther)
{
    show(u"everything at once"_s);

    item("StatusBadge_").setWidth(300);

    EXPECT_THAT(faults(), Contains("RecordingBadge and SlideChip lie over each other"));
}

TEST_F(MeasuresTest, seesABadgeOverALine)
{
    show(u"paused"_s);

    item("StatusBadge_").setHeight(100);

    EXPECT_THAT(faults(), Contains("StatusBadge lies over a line"));
}

} // namespace
} // namespace Orvello::Gallery
