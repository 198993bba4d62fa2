#include "Orvello/Prompting/Text/PromptFont.h"
#include "Orvello/Prompting/View/PromptText.h"
#include "Tests/Prompting/Text/ShownText.h"
#include "Tests/Support/PrompterServices.h"

#include <QFontInfo>
#include <QFontMetricsF>
#include <QQuickItem>
#include <QQuickView>
#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;

constexpr QRgb red = qRgb(255, 69, 58);
constexpr QRgb yellow = qRgb(255, 214, 10);
constexpr QRgb green = qRgb(48, 209, 88);

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
        services.prompt(text);
        window = std::make_unique<PrompterWindow>(services.ofWindow(forceCapturable));
        resize(720, 200);
    }

    QQuickView& view() const { return static_cast<QQuickView&>(window->window()); }
    QQuickItem& root() const { return *view().rootObject(); }
    PromptLines& lines() const { return *root().property("lines").value<PromptLines*>(); }

    void resize(int width, int height)
    {
        view().resize(width, height);
        root().setSize(QSizeF(width, height));
    }

    /// Every visible item below the root that shows a text.
    QList<QQuickItem*> visibleTexts() const
    {
        QList<QQuickItem*> result;
        collectVisibleTexts(root(), result);
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

    /// Where the script's line with that text stands in a frame that is drawn now: its box is as
    /// high as the font, and as wide as the frame of the text.
    QRectF placeOfLine(const QString& text) const
    {
        QQuickItem& item = *root().findChild<PromptText*>();
        item.polish();
        item.ensurePolished();
        const PromptTypography& typography = lines().shownTypography();
        const QFontMetricsF metrics(typography.font);
        for (const PromptLine& line : lines().visibleLines()) {
            if (Testing::shownText(line) == text)
                return { (item.width() - typography.width) / 2,
                    (line.baseline - metrics.ascent()) * typography.scale - lines().visibleTop(),
                    typography.width, std::ceil(metrics.ascent() + metrics.descent()) };
        }
        return {};
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
        return item.mapRectToItem(&root(), QRectF(QPointF(), item.size()));
    }

    void moveMouse(int x, int y)
    {
        QTest::mouseMove(&view(), QPoint(x, y));
        Testing::drainEvents();
    }

    void click(const QQuickItem& item)
    {
        QTest::mouseClick(
            &view(), Qt::LeftButton, Qt::NoModifier, placeOf(item).center().toPoint());
        Testing::drainEvents();
    }

    /// The visible items that have all these properties, in the order of the tree.
    QList<QQuickItem*> itemsWith(const QVariantMap& properties) const
    {
        QList<QQuickItem*> result;
        collectItemsWith(properties, root(), result);
        return result;
    }

    static void collectItemsWith(
        const QVariantMap& properties, const QQuickItem& item, QList<QQuickItem*>& result)
    {
        for (QQuickItem* child : item.childItems()) {
            if (!child->isVisible())
                continue;
            const auto all = properties.asKeyValueRange();
            if (std::all_of(all.begin(), all.end(), [child](const auto& wanted) {
                    return child->property(qPrintable(wanted.first)) == wanted.second;
                }))
                result.append(child);
            collectItemsWith(properties, *child, result);
        }
    }

    QQuickItem* symbol(const QString& name) const
    {
        const QList<QQuickItem*> items = itemsWith({ { u"name"_s, name } });
        return items.isEmpty() ? nullptr : items.first();
    }

    QQuickItem* recordingBadge() const
    {
        const QList<QQuickItem*> badges
            = itemsWith({ { u"radius"_s, 4.0 }, { u"height"_s, 18.0 } });
        return badges.isEmpty() ? nullptr : badges.first();
    }

    static QRgb colorOf(const QQuickItem& item)
    {
        return item.property("color").value<QColor>().rgba();
    }

    static QRgb white(double opacity) { return qRgba(255, 255, 255, qRound(opacity * 255)); }

    void openDeck()
    {
        services.openDeck({ { 1, u"Intro"_s, u"First notes"_s },
            { 2, u"A title that goes on for much longer than any chip is wide"_s, u"Second"_s },
            { 3, std::nullopt, u"Last notes"_s } });
    }

    Testing::PrompterServices services;
    SettingsStore& settings = services.settings;
    Testing::ManualTimeSource& time = services.stage.time;
    ScrollEngine& engine = services.engine;
    std::unique_ptr<PrompterWindow> window;
};

TEST_F(PrompterViewTest, beginsAtALine)
{
    QStringList numbered;
    for (int i = 0; i < 40; ++i)
        numbered.append(u"Line %1"_s.arg(i));
    const QString text = numbered.join(u'\n');
    show(text);
    const double top = placeOfLine(u"Line 0"_s).top();
    const double pitch = placeOfLine(u"Line 1"_s).top() - top;

    window->startAt(text.indexOf(u"Line 20") + 3);
    EXPECT_DOUBLE_EQ(services.engine.offset(), 20 * pitch);
    EXPECT_TRUE(services.engine.isRunning());
    EXPECT_NEAR(placeOfLine(u"Line 20"_s).top(), top, 1) << "it stands where the first line did";

    services.engine.toggle();
    window->startAt(text.size());
    EXPECT_EQ(services.engine.offset(), services.engine.endOffset());
    EXPECT_FALSE(services.engine.isRunning()) << "it would start again from the top";

    settings.setCountdownSeconds(3);
    window->startAt(0);
    EXPECT_EQ(services.engine.countdown(), 3);
    window->startAt(text.indexOf(u"Line 1\n"));
    EXPECT_EQ(services.engine.countdown(), std::nullopt);
    EXPECT_TRUE(services.engine.isRunning());
}

TEST_F(PrompterViewTest, tellsTheEngineTheHeightThatIsVisible)
{
    EXPECT_EQ(engine.viewportHeight(), 200);

    resize(720, 340);
    EXPECT_EQ(engine.viewportHeight(), 340);
}

TEST_F(PrompterViewTest, tellsTheEngineTheHeightOfTheText)
{
    EXPECT_GT(engine.contentHeight(), 100);
    EXPECT_EQ(engine.contentHeight(), lines().contentHeight());
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

TEST_F(PrompterViewTest, keepsTheLineThatIsReadWhereItIsWhenTheTextSizeChanges)
{
    QStringList numbered;
    for (int i = 0; i < 400; ++i)
        numbered.append(u"line %1"_s.arg(i));
    show(numbered.join(u'\n'));
    const double pitch = (engine.contentHeight() + 0.28 * 30) / 400;
    engine.setOffset(200 * pitch);
    ASSERT_NEAR(placeOfLine(u"line 200"_s).top(), 36, 1);
    const double before = placeOfLine(u"line 200"_s).top();

    for (const double size : { 16.0, 64.0, 24.5, 30.0 }) {
        settings.setFontSize(size);
        EXPECT_NEAR(placeOfLine(u"line 200"_s).top(), before, 1) << size;
    }
}

TEST_F(PrompterViewTest, keepsTheWordsThatAreReadWhereTheyAreWhenTheWidthChanges)
{
    QStringList words;
    for (int i = 0; i < 2000; ++i)
        words.append(QString::number(i));
    show(words.join(u' '));
    engine.start();
    engine.setOffset(engine.contentHeight() / 2);
    const auto topOf = [this](const QString& word) {
        placeOfLine({}); // Prepares a frame.
        for (const PromptLine& line : lines().visibleLines()) {
            if (const QString text = Testing::shownText(line); text.split(u' ').contains(word))
                return placeOfLine(text).top();
        }
        return -1000.0;
    };
    placeOfLine({});
    const QString read = Testing::shownText(lines().visibleLines().at(2)).section(u' ', 0, 0);
    engine.setOffset(engine.offset() + topOf(read) - 36);
    ASSERT_NEAR(topOf(read), 36, 1);

    for (const int width : { 340, 1200, 500, 720, 400, 1600, 720 }) {
        resize(width, 200);
        EXPECT_NEAR(topOf(read), 36, 47) << "within a line, at the width " << width;
        EXPECT_TRUE(engine.isRunning());
    }
    EXPECT_NEAR(topOf(read), 36, 1) << "at the width that it had";
}

TEST_F(PrompterViewTest, staysAtTheTopWhenTheTextSizeChanges)
{
    settings.setFontSize(60);
    EXPECT_EQ(engine.offset(), 0);
}

TEST_F(PrompterViewTest, keeps28PointsFreeAtEachSide)
{
    EXPECT_EQ(lines().textWidth(), 720 - 56);
    const QRectF line = placeOfLine(u"One"_s);
    EXPECT_EQ(line.left(), 28);
    EXPECT_EQ(line.width(), 720 - 56);
}

TEST_F(PrompterViewTest, neverSetsTheTextNarrowerThan100Points)
{
    resize(120, 200);

    EXPECT_EQ(lines().textWidth(), 100);
    EXPECT_EQ(placeOfLine(u"One"_s).left(), 10);
}

TEST_F(PrompterViewTest, standsTheFirstLine18PercentDownTheCard)
{
    EXPECT_NEAR(placeOfLine(u"One"_s).top(), 36, 1e-6);

    resize(720, 400);
    EXPECT_NEAR(placeOfLine(u"One"_s).top(), 72, 1e-6);
}

TEST_F(PrompterViewTest, movesTheTextUpByTheOffset)
{
    engine.setOffset(12.25);

    EXPECT_NEAR(placeOfLine(u"One"_s).top(), 36 - 12.25, 1e-6);
}

TEST_F(PrompterViewTest, endsTheTextAt48PercentOfTheCard)
{
    engine.setOffset(engine.endOffset());

    EXPECT_NEAR(placeOfLine(u"Three"_s).bottom(), 96, 1e-6);
}

TEST_F(PrompterViewTest, setsTheTextInSemiboldOfTheSettings)
{
    settings.setFontSize(44);
    settings.setTextColorName(u"Green"_s);

    const QFont font = lines().shownTypography().font;
    EXPECT_EQ(QFontInfo(font).pixelSize(), 44);
    EXPECT_EQ(font.weight(), QFont::DemiBold);
    EXPECT_EQ(font.family(), PromptFont::family());
    EXPECT_EQ(root().findChild<PromptText*>()->color(), QColor(48, 209, 88));
}

TEST_F(PrompterViewTest, tellsTheTextHowDarkTheCardIs)
{
    settings.setBackgroundOpacity(0.3);

    EXPECT_EQ(root().findChild<PromptText*>()->cardOpacity(), 0.3);
}

TEST_F(PrompterViewTest, takesOverAChangedText)
{
    services.prompt(u"Another"_s);

    EXPECT_TRUE(placeOfLine(u"Another"_s).isValid());
    EXPECT_FALSE(placeOfLine(u"One"_s).isValid());
}

TEST_F(PrompterViewTest, showsALetterThatIsTyped)
{
    services.library.editActive(3, 0, u"s"_s);
    Testing::drainEvents();

    EXPECT_TRUE(placeOfLine(u"Ones"_s).isValid());
    EXPECT_TRUE(placeOfLine(u"Two"_s).isValid());
    EXPECT_EQ(lines().text(), u"Ones\nTwo\nThree"_s);
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

    window->setVisibleInRecordings(true);
    EXPECT_NE(textItem(u"VISIBLE IN RECORDINGS"_s), nullptr);

    window->setVisibleInRecordings(false);
    EXPECT_EQ(textItem(u"VISIBLE IN RECORDINGS"_s), nullptr);
}

TEST_F(PrompterViewTest, showsTheVoiceBesideTheStatus)
{
    const auto bars = [&] { return itemsWith({ { u"width"_s, 3.0 }, { u"height"_s, 10.0 } }); };
    ASSERT_EQ(bars().size(), 5);
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(placeOf(*bars()[i]).left() - placeOf(*bars()[0]).left(), i * (3 + 2));
        EXPECT_EQ(colorOf(*bars()[i]), white(0.15));
    }

    services.hear(1.0F);
    for (const QQuickItem* bar : bars())
        EXPECT_EQ(colorOf(*bar), green);

    services.hear(0.03F);
    const float level = services.voice.level();
    ASSERT_GT(level, 0.2F);
    ASSERT_LT(level, 0.8F);
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(colorOf(*bars()[i]) == green, static_cast<float>(i) / 5 < level) << i;
}

TEST_F(PrompterViewTest, showsTheSlideChipWhileADeckIsFollowed)
{
    EXPECT_EQ(symbol(u"chevron.left"_s), nullptr);

    openDeck();
    EXPECT_NE(symbol(u"chevron.left"_s), nullptr);
    EXPECT_NE(symbol(u"chevron.right"_s), nullptr);
    const QQuickItem* title = textItem(u"Intro"_s);
    ASSERT_NE(title, nullptr);
    EXPECT_EQ(colorOf(*title), white(0.55));
    const QQuickItem* position = textItem(u"1 / 3"_s);
    ASSERT_NE(position, nullptr);
    EXPECT_EQ(colorOf(*position), white(0.85));
    EXPECT_EQ(position->property("font").value<QFont>().weight(), QFont::DemiBold);
    EXPECT_NE(textItem(u"Manual"_s), nullptr);

    settings.setSlideSync(false);
    Testing::drainEvents();
    EXPECT_EQ(symbol(u"chevron.left"_s), nullptr);
}

TEST_F(PrompterViewTest, stepsThroughTheSlidesByTheChipsButtons)
{
    openDeck();

    click(*symbol(u"chevron.right"_s));
    EXPECT_NE(textItem(u"2 / 3"_s), nullptr);
    EXPECT_EQ(services.deck.displayIndex(), 1);

    click(*symbol(u"chevron.left"_s));
    EXPECT_EQ(services.deck.displayIndex(), 0);
}

TEST_F(PrompterViewTest, showsWhichButtonsOfTheChipAreInert)
{
    const QRgb possible = white(0.8);
    const QRgb inert = white(0.25);
    openDeck();
    EXPECT_EQ(colorOf(*symbol(u"chevron.left"_s)), inert);
    EXPECT_EQ(colorOf(*symbol(u"chevron.right"_s)), possible);

    click(*symbol(u"chevron.left"_s));
    EXPECT_EQ(services.deck.displayIndex(), 0);

    click(*symbol(u"chevron.right"_s));
    click(*symbol(u"chevron.right"_s));
    EXPECT_EQ(colorOf(*symbol(u"chevron.left"_s)), possible);
    EXPECT_EQ(colorOf(*symbol(u"chevron.right"_s)), inert);
    click(*symbol(u"chevron.right"_s));
    EXPECT_EQ(services.deck.displayIndex(), 2);
}

TEST_F(PrompterViewTest, takesThePressOnAnInertButtonSoThatItDragsNothing)
{
    openDeck();
    const QPointF place = placeOf(*symbol(u"chevron.left"_s)).center();
    QMouseEvent press(
        QEvent::MouseButtonPress, place, place, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);

    QCoreApplication::sendEvent(&view(), &press);

    EXPECT_NE(press.exclusiveGrabber(press.point(0)), nullptr);
}

TEST_F(PrompterViewTest, showsTheDotOfTheSyncState)
{
    const auto dot = [&] {
        return colorOf(*itemsWith({ { u"width"_s, 6.0 }, { u"height"_s, 6.0 } }).value(0));
    };
    openDeck();
    EXPECT_EQ(dot(), white(0.5));

    services.startSlideshow();
    services.showLiveSlide(1);
    EXPECT_EQ(dot(), green);
    EXPECT_NE(textItem(u"Live"_s), nullptr);

    services.refuseToTellTheSlide();
    EXPECT_EQ(dot(), red);
    EXPECT_NE(textItem(u"No access"_s), nullptr);
}

TEST_F(PrompterViewTest, keepsTheSlidesTitleWithin140PointsOnOneLine)
{
    openDeck();
    const double lineHeight = textItem(u"Intro"_s)->height();

    click(*symbol(u"chevron.right"_s));

    const QQuickItem* title
        = textItem(u"A title that goes on for much longer than any chip is wide"_s);
    ASSERT_NE(title, nullptr);
    EXPECT_EQ(title->width(), 140);
    EXPECT_EQ(title->height(), lineHeight);
}

TEST_F(PrompterViewTest, keepsTheChipsButtonsUnderThePointer)
{
    openDeck();
    const QRectF before = placeOf(*symbol(u"chevron.right"_s));

    click(*symbol(u"chevron.right"_s));
    services.startSlideshow();
    services.showLiveSlide(1);

    EXPECT_EQ(placeOf(*symbol(u"chevron.right"_s)), before);
}

TEST_F(PrompterViewTest, startsEverySlideAtTheTopWithoutStopping)
{
    openDeck();
    engine.start();
    engine.setOffset(12);
    ASSERT_TRUE(engine.isRunning());

    click(*symbol(u"chevron.right"_s));

    EXPECT_EQ(engine.offset(), 0);
    EXPECT_TRUE(engine.isRunning());
}

TEST_F(PrompterViewTest, warnsOfSwitchingStealthModeDuringACall)
{
    const QString warning = u"Toggling Stealth Mode during a screen share can gray out this "
                            "prompter — close and open Orvello again to clear it."_s;
    EXPECT_EQ(textItem(warning), nullptr);

    services.setInCall(true);
    EXPECT_NE(textItem(warning), nullptr);
    ASSERT_NE(symbol(u"eye.trianglebadge.exclamationmark"_s), nullptr);
    EXPECT_EQ(colorOf(*symbol(u"eye.trianglebadge.exclamationmark"_s)), yellow);

    settings.setCountdownSeconds(3);
    engine.start();
    EXPECT_EQ(textItem(warning), nullptr);
    time.advance(3.0);
    EXPECT_NE(textItem(warning), nullptr);

    click(*symbol(u"xmark"_s));
    EXPECT_EQ(textItem(warning), nullptr);
    services.setInCall(false);
    services.setInCall(true);
    EXPECT_EQ(textItem(warning), nullptr);
}

TEST_F(PrompterViewTest, laysNothingAtTheEdgesOverEachOther)
{
    for (const bool isFolded : { false, true }) {
        settings.setRecordingBadgeFolded(isFolded);
        for (const QSize size : { QSize(340, 130), QSize(420, 150), QSize(500, 200),
                 QSize(720, 200), QSize(1600, 900) }) {
            show(u"One"_s, true);
            openDeck();
            services.setInCall(true);
            click(*symbol(u"chevron.right"_s));
            resize(size.width(), size.height());

            QList<QRectF> places { placeOf(*recordingBadge()) };
            for (const QQuickItem* item : itemsWith({ { u"radius"_s, 9.0 } }))
                places.append(placeOf(*item));
            ASSERT_EQ(places.size(), 4) << "badge, status, chip and notice";
            for (qsizetype i = 0; i < places.size(); ++i) {
                EXPECT_TRUE(QRectF(6, 6, size.width() - 12, size.height() - 12).contains(places[i]))
                    << size.width() << " " << i;
                for (qsizetype j = 0; j < i; ++j)
                    EXPECT_FALSE(places[i].intersects(places[j]))
                        << size.width() << " " << i << " " << j;
            }
        }
    }
}

TEST_F(PrompterViewTest, keepsTheBadgesWhereTheTextDissolves)
{
    show(u"One"_s, true);
    openDeck();
    for (const QSize size : { QSize(340, 130), QSize(720, 200), QSize(1600, 900) }) {
        resize(size.width(), size.height());
        QList<QQuickItem*> badges = itemsWith({ { u"radius"_s, 9.0 } });
        badges.append(recordingBadge());
        for (const QQuickItem* badge : badges)
            EXPECT_GT(placeOf(*badge).top(), 0.82 * size.height() - 1) << size.height();
    }
}

TEST_F(PrompterViewTest, foldsTheBadgeToAnEyeThatStaysRed)
{
    window->setVisibleInRecordings(true);
    const double words = recordingBadge()->width();

    click(*recordingBadge());
    EXPECT_TRUE(settings.recordingBadgeFolded());
    EXPECT_EQ(textItem(u"VISIBLE IN RECORDINGS"_s), nullptr);
    EXPECT_NE(symbol(u"eye"_s), nullptr);
    EXPECT_LT(recordingBadge()->width(), 24);
    EXPECT_EQ(colorOf(*recordingBadge()), red);

    click(*recordingBadge());
    EXPECT_FALSE(settings.recordingBadgeFolded());
    EXPECT_NE(textItem(u"VISIBLE IN RECORDINGS"_s), nullptr);
    EXPECT_EQ(recordingBadge()->width(), words);
}

TEST_F(PrompterViewTest, foldsTheBadgeByItselfWhereItHasNoRoom)
{
    window->setVisibleInRecordings(true);
    openDeck();
    resize(340, 130);
    EXPECT_EQ(textItem(u"VISIBLE IN RECORDINGS"_s), nullptr);
    EXPECT_EQ(colorOf(*recordingBadge()), red);

    click(*recordingBadge());
    EXPECT_FALSE(settings.recordingBadgeFolded()) << "nothing would have changed";

    resize(720, 130);
    EXPECT_NE(textItem(u"VISIBLE IN RECORDINGS"_s), nullptr);
}

TEST_F(PrompterViewTest, holdsThePressOnTheBadgeSoThatItDragsNothing)
{
    show(u"One"_s, true);
    const QPointF place = placeOf(*recordingBadge()).center();
    QMouseEvent press(
        QEvent::MouseButtonPress, place, place, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);

    QCoreApplication::sendEvent(&view(), &press);

    EXPECT_NE(press.exclusiveGrabber(press.point(0)), nullptr);
}

TEST_F(PrompterViewTest, fitsIntoTheSmallestPanel)
{
    show(u"One"_s, true);
    openDeck();
    services.setInCall(true);
    resize(340, 130);

    for (const QQuickItem* item : visibleTexts()) {
        const QRectF place = placeOf(*item);
        EXPECT_TRUE(QRectF(0, 0, 340, 130).contains(place))
            << item->property("text").toString().toStdString() << place.width();
    }
}

TEST_F(PrompterViewTest, offersTheNotesOfTheDeckThatIsOnScreen)
{
    openDeck();
    services.setInCall(true);
    services.presentOtherDeck(u"A budget with a name that is far longer than this card is wide, "
                              "and goes on\x1e"
                              "Costs\x1f\x1eIncome\x1f"_s);
    resize(340, 130);

    // As a frame would.
    for (QQuickItem* item : root().findChildren<QQuickItem*>())
        item->ensurePolished();

    EXPECT_NE(textItem(u"Other deck"_s), nullptr);
    EXPECT_EQ(textItem(u"1 / 3"_s), nullptr);
    EXPECT_EQ(symbol(u"chevron.right"_s), nullptr);
    EXPECT_EQ(symbol(u"eye.trianglebadge.exclamationmark"_s), nullptr);
    for (const QQuickItem* item : visibleTexts()) {
        const QRectF place = placeOf(*item);
        EXPECT_TRUE(QRectF(0, 0, 340, 130).contains(place))
            << item->property("text").toString().toStdString() << place.width();
    }

    ASSERT_NE(textItem(u"Keep these notes"_s), nullptr);
    click(*textItem(u"Keep these notes"_s));
    EXPECT_EQ(textItem(u"Keep these notes"_s), nullptr);
    EXPECT_EQ(services.deck.promptText(), u"First notes"_s);
    EXPECT_NE(symbol(u"eye.trianglebadge.exclamationmark"_s), nullptr);
}

TEST_F(PrompterViewTest, fitsTheCountdownIntoTheSmallestPanel)
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

TEST_F(PrompterViewTest, showsTheReadersTimeBesideTheStatus)
{
    const QRectF without = placeOf(*textItem(u"paused"_s));
    EXPECT_EQ(visibleTexts().size(), 1);
    settings.setCardTime(u"elapsed"_s);
    show(u"One"_s);

    ASSERT_TRUE(textItem(u"0:00"_s));
    EXPECT_GT(placeOf(*textItem(u"0:00"_s)).left(), without.right());
    EXPECT_EQ(placeOf(*textItem(u"paused"_s)), without);
}

TEST_F(PrompterViewTest, tellsWhoPointsAtTheStatusWhatTheMicrophoneHears)
{
    const QPoint onBadge = placeOf(*textItem(u"paused"_s)).center().toPoint();
    moveMouse(360, -50); // Where the pointer is already, nothing moves.
    moveMouse(onBadge.x(), onBadge.y());
    EXPECT_EQ(visibleTexts().size(), 1) << "nothing is heard, or wanted to be";

    services.microphones.become({ .heard = u"Headset"_s });
    settings.setVoiceFollow(true);
    services.hear(0);
    const QString heard = u"Listening to “Headset”."_s;
    ASSERT_TRUE(textItem(heard));
    EXPECT_TRUE(textItem(u"Echo cancellation is on."_s));
    EXPECT_FALSE(placeOf(*textItem(heard)).intersects(placeOf(*textItem(u"hover pause"_s))));

    services.microphones.become({ .heard = u"Headset"_s, .trouble = Microphones::Trouble::Muted });
    EXPECT_TRUE(textItem(u"The microphone “Headset” is muted."_s));

    moveMouse(360, 20);
    EXPECT_FALSE(textItem(u"The microphone “Headset” is muted."_s));
}

TEST_F(PrompterViewTest, holdsTheTextWhileThePointerIsOnTheChip)
{
    openDeck();
    for (const QString& name : { u"chevron.left"_s, u"chevron.right"_s }) {
        moveMouse(360, -50);
        ASSERT_FALSE(engine.hoverPaused());

        const QPoint onButton = placeOf(*symbol(name)).center().toPoint();
        moveMouse(onButton.x(), onButton.y());

        EXPECT_TRUE(engine.hoverPaused());
    }
}

} // namespace
} // namespace Orvello
