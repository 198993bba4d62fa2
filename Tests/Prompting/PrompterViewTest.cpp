#include "Orvello/Prompting/PromptFont.h"
#include "Orvello/Prompting/PromptLines.h"
#include "Orvello/Prompting/PrompterStatus.h"
#include "Orvello/Prompting/ScrollEngine.h"
#include "Orvello/Settings/SettingsStore.h"
#include "Tests/Support/EventLoop.h"
#include "Tests/Support/FakeUserDefaults.h"
#include "Tests/Support/ManualTimeSource.h"

#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <QTest>

#include <gtest/gtest.h>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;

/// The view in a window that is never drawn: bindings, geometry and pointer events are all real.
class PrompterViewTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        settings.setCountdownSeconds(0);
        show(u"One\nTwo\nThree"_s);
    }

    void show(const QString& text, bool forceCapturable = false)
    {
        view = std::make_unique<QQuickView>();
        view->engine()->addImportPath(u"qrc:/qt/qml"_s);
        view->setResizeMode(QQuickView::SizeRootObjectToView);
        view->setInitialProperties({
            { u"engine"_s, QVariant::fromValue(&engine) },
            { u"settings"_s, QVariant::fromValue(&settings) },
            { u"lines"_s, QVariant::fromValue(&lines) },
            { u"status"_s, QVariant::fromValue(&status) },
            { u"promptText"_s, text },
            { u"fontFamily"_s, PromptFont::family() },
            { u"forceCapturable"_s, forceCapturable },
        });
        view->resize(720, 200);
        view->setSource(QUrl(u"qrc:/qt/qml/Orvello/PrompterView.qml"_s));
        ASSERT_EQ(view->status(), QQuickView::Ready);
        resize(720, 200);
    }

    void resize(int width, int height) { view->rootObject()->setSize(QSizeF(width, height)); }

    /// Every visible item below the root that shows a text.
    QList<QQuickItem*> visibleTexts() const
    {
        QList<QQuickItem*> result;
        collectVisibleTexts(*view->rootObject(), result);
        return result;
    }

    static void collectVisibleTexts(const QQuickItem& item, QList<QQuickItem*>& result)
    {
        for (QQuickItem* child : item.childItems()) {
            if (!child->isVisible() || child->opacity() == 0)
                continue;
            if (!child->property("text").toString().isEmpty())
                result.append(child);
            collectVisibleTexts(*child, result);
        }
    }

    QQuickItem* textItem(const QString& text) const
    {
        for (QQuickItem* item : visibleTexts()) {
            if (item->property("text").toString() == text)
                return item;
        }
        return nullptr;
    }

    QRectF placeOf(const QQuickItem& item) const
    {
        return item.mapRectToItem(view->rootObject(), QRectF(QPointF(), item.size()));
    }

    void moveMouse(int x, int y)
    {
        QTest::mouseMove(view.get(), QPoint(x, y));
        Testing::drainEvents();
    }

    Testing::FakeUserDefaults defaults;
    SettingsStore settings { defaults };
    Testing::ManualTimeSource time;
    ScrollEngine engine { settings, time };
    PromptLines lines { time };
    PrompterStatus status { engine };
    std::unique_ptr<QQuickView> view;
};

TEST_F(PrompterViewTest, tellsTheEngineTheHeightThatIsVisible)
{
    EXPECT_EQ(engine.viewportHeight(), 200);

    resize(720, 340);
    EXPECT_EQ(engine.viewportHeight(), 340);
}

TEST_F(PrompterViewTest, tellsTheEngineTheHeightOfTheText)
{
    EXPECT_GT(engine.contentHeight(), 100);
    EXPECT_EQ(engine.contentHeight(), lines.contentHeight());
}

TEST_F(PrompterViewTest, tellsANewViewsEngineWhatIsLaidOutAlready)
{
    const double height = engine.contentHeight();
    engine.setContentHeight(0);
    engine.setViewportHeight(0);

    show(u"One\nTwo\nThree"_s);

    EXPECT_EQ(engine.contentHeight(), height);
    EXPECT_EQ(engine.viewportHeight(), 200);
}

TEST_F(PrompterViewTest, movesTheEndAtOnceWhenTheFontSizeChanges)
{
    const double before = engine.endOffset();

    settings.setFontSize(60);

    EXPECT_GT(engine.endOffset(), 1.5 * before);
}

TEST_F(PrompterViewTest, keeps28PointsFreeAtEachSide)
{
    EXPECT_EQ(lines.textWidth(), 720 - 56);
    const QRectF line = placeOf(*textItem(u"One"_s));
    EXPECT_EQ(line.left(), 28);
    EXPECT_EQ(line.width(), 720 - 56);
}

TEST_F(PrompterViewTest, neverSetsTheTextNarrowerThan100Points)
{
    resize(120, 200);

    EXPECT_EQ(lines.textWidth(), 100);
    EXPECT_EQ(placeOf(*textItem(u"One"_s)).left(), 10);
}

TEST_F(PrompterViewTest, standsTheFirstLine18PercentDownTheCard)
{
    EXPECT_NEAR(placeOf(*textItem(u"One"_s)).top(), 36, 1e-6);

    resize(720, 400);
    EXPECT_NEAR(placeOf(*textItem(u"One"_s)).top(), 72, 1e-6);
}

TEST_F(PrompterViewTest, movesTheTextUpByTheOffset)
{
    engine.setOffset(12.25);

    EXPECT_NEAR(placeOf(*textItem(u"One"_s)).top(), 36 - 12.25, 1e-6);
}

TEST_F(PrompterViewTest, endsTheTextAt48PercentOfTheCard)
{
    engine.setOffset(engine.endOffset());

    const double top = placeOf(*textItem(u"Three"_s)).top();
    const double lineHeight = textItem(u"Three"_s)->height();
    EXPECT_NEAR(top + lineHeight, 96, 1e-6);
}

TEST_F(PrompterViewTest, setsTheTextInSemiboldOfTheSettings)
{
    settings.setFontSize(44);
    settings.setTextColorName(u"Green"_s);

    const QFont font = textItem(u"One"_s)->property("font").value<QFont>();
    EXPECT_EQ(font.pixelSize(), 44);
    EXPECT_EQ(font.weight(), QFont::DemiBold);
    EXPECT_EQ(font.family(), PromptFont::family());
    EXPECT_EQ(textItem(u"One"_s)->property("color").value<QColor>(), QColor(48, 209, 88));
}

TEST_F(PrompterViewTest, takesOverAChangedText)
{
    view->rootObject()->setProperty("promptText", u"Another"_s);

    EXPECT_NE(textItem(u"Another"_s), nullptr);
    EXPECT_EQ(textItem(u"One"_s), nullptr);
}

TEST_F(PrompterViewTest, showsTheCountdownInTheMiddle)
{
    settings.setCountdownSeconds(3);
    EXPECT_EQ(textItem(u"3"_s), nullptr);

    engine.start();
    const QQuickItem* number = textItem(u"3"_s);
    ASSERT_NE(number, nullptr);
    EXPECT_NEAR(placeOf(*number).center().x(), 360, 1);
    EXPECT_NEAR(placeOf(*number).center().y(), 100, 1);
    EXPECT_EQ(number->property("font").value<QFont>().pixelSize(), 84);
    EXPECT_EQ(number->property("font").value<QFont>().weight(), QFont::Bold);

    time.advance(1);
    EXPECT_NE(textItem(u"2"_s), nullptr);
    time.advance(2);
    EXPECT_EQ(textItem(u"1"_s), nullptr);
}

TEST_F(PrompterViewTest, showsTheStatus)
{
    EXPECT_NE(textItem(u"paused"_s), nullptr);

    engine.start();
    EXPECT_NE(textItem(u"scrolling"_s), nullptr);
    EXPECT_EQ(textItem(u"paused"_s), nullptr);
}

TEST_F(PrompterViewTest, movesNothingWhenTheStatusChanges)
{
    const QRectF paused = placeOf(*textItem(u"paused"_s)->parentItem()->parentItem());

    engine.start();
    engine.setVoiceFollowActive(true);

    EXPECT_EQ(placeOf(*textItem(u"listening…"_s)->parentItem()->parentItem()), paused);
}

TEST_F(PrompterViewTest, showsTheDebugBadgeOfACapturablePrompterOnly)
{
    EXPECT_EQ(textItem(u"DEBUG — VISIBLE IN RECORDINGS"_s), nullptr);

    show(u"One"_s, true);

    const QQuickItem* badge = textItem(u"DEBUG — VISIBLE IN RECORDINGS"_s);
    ASSERT_NE(badge, nullptr);
    EXPECT_EQ(badge->property("font").value<QFont>().pixelSize(), 10);
    EXPECT_EQ(badge->property("font").value<QFont>().weight(), QFont::Bold);
}

TEST_F(PrompterViewTest, saysThatRecordingsShowItWhereStealthModeCannotHideIt)
{
    EXPECT_EQ(textItem(u"VISIBLE IN RECORDINGS"_s), nullptr);

    view->rootObject()->setProperty("visibleInRecordings", true);
    EXPECT_NE(textItem(u"VISIBLE IN RECORDINGS"_s), nullptr);

    view->rootObject()->setProperty("visibleInRecordings", false);
    EXPECT_EQ(textItem(u"VISIBLE IN RECORDINGS"_s), nullptr);
}

TEST_F(PrompterViewTest, fitsIntoTheSmallestPanel)
{
    settings.setCountdownSeconds(10);
    show(u"One"_s, true);
    resize(340, 130);
    engine.start();

    for (const QQuickItem* item : visibleTexts()) {
        const QRectF place = placeOf(*item);
        EXPECT_TRUE(QRectF(0, 0, 340, 130).contains(place))
            << item->property("text").toString().toStdString() << place.width();
    }
}

TEST_F(PrompterViewTest, holdsTheTextWhileThePointerIsInside)
{
    moveMouse(360, 100);
    EXPECT_TRUE(engine.hoverPaused());

    moveMouse(360, -50);
    EXPECT_FALSE(engine.hoverPaused());
}

TEST_F(PrompterViewTest, holdsTheTextWhileThePointerIsOnABadge)
{
    const QPoint onBadge = placeOf(*textItem(u"paused"_s)).center().toPoint();

    moveMouse(onBadge.x(), onBadge.y());

    EXPECT_TRUE(engine.hoverPaused());
}

} // namespace
} // namespace Orvello
