#include "Orvello/Prompting/View/PromptText.h"

#include "Orvello/Foundation/Assign.h"
#include "Orvello/Prompting/Text/Legibility.h"
#include "Orvello/Prompting/View/FadingLinesNode.h"

#include <QQuickWindow>
#include <QScopedValueRollback>
#include <QScreen>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <utility>

namespace Orvello {

namespace {

/// Where the first line stands at offset 0, as a share of the card's height.
constexpr double firstLineTop = 0.18;

/// Beside the text, in points, on cards that are wide enough.
constexpr double sideMargin = 28;
constexpr double smallestTextWidth = 100;

/// From asking Qt for a frame until it begins to prepare it, in seconds: QPlatformWindow waits this
/// long for further requests.
constexpr double requestLatency = 0.005;

constexpr double usualFrameInterval = 1.0 / 60.0;

} // namespace

PromptText::PromptText(QQuickItem* parent)
    : QQuickItem(parent)
{
    setFlag(ItemHasContents);
    m_pacing.setSingleShot(true);
    m_pacing.setTimerType(Qt::PreciseTimer);
    connect(&m_pacing, &QTimer::timeout, this, &PromptText::requestFrame);
}

PromptText::~PromptText() = default;

void PromptText::setEngine(ScrollEngine* engine)
{
    m_engine = engine;
    m_scroll.emplace(*engine);
    for (const auto signal : { &ScrollEngine::offsetChanged, &ScrollEngine::isRunningChanged,
             &ScrollEngine::hoverPausedChanged, &ScrollEngine::voiceFollowActiveChanged,
             &ScrollEngine::voiceGateChanged })
        connect(engine, signal, this, &PromptText::follow);
    Q_EMIT engineChanged();
    tellSize();
}

void PromptText::setLines(PromptLines* lines)
{
    m_lines = lines;
    connect(lines, &PromptLines::visibleLinesChanged, this, [this] {
        m_areLinesNew = true;
        requestFrame();
    });
    connect(lines, &PromptLines::shownTypographyChanged, this, &PromptText::redrawAllLines);
    Q_EMIT linesChanged();
    redrawAllLines();
    tellSize();
}

void PromptText::setColor(const QColor& color)
{
    if (!assign(m_color, color))
        return;
    redrawAllLines();
    outlineLetters();
    Q_EMIT colorChanged();
}

void PromptText::setCardOpacity(double opacity)
{
    if (!assign(m_cardOpacity, opacity))
        return;
    outlineLetters();
    Q_EMIT cardOpacityChanged();
}

void PromptText::outlineLetters()
{
    if (assign(m_outline, Legibility::outlineOf(m_color, m_cardOpacity)))
        redrawAllLines();
}

void PromptText::geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    tellSize();
}

/// The engine and the layout cannot know how much space there is.
void PromptText::tellSize()
{
    if (!m_engine || !m_lines)
        return;
    m_engine->setViewportHeight(height());
    m_lines->setVisibleHeight(height());
    m_lines->setTextWidth(std::max(width() - 2 * sideMargin, smallestTextWidth));
    requestFrame();
}

void PromptText::itemChange(ItemChange change, const ItemChangeData& data)
{
    QQuickItem::itemChange(change, data);
    if (change == ItemDevicePixelRatioHasChanged)
        redrawAllLines();
    if (change == ItemSceneChange && data.window)
        connect(data.window, &QQuickWindow::frameSwapped, this, &PromptText::frameWasShown,
            Qt::UniqueConnection);
}

/// What the engine does is seen in the next frame. While frames follow each other anyway, its ticks
/// ask for none of their own: those would fall between the display's.
void PromptText::follow()
{
    if (!m_isFollowing)
        requestFrame();
}

/// What is asked for while a frame is being prepared would be a further frame to Qt.
void PromptText::requestFrame()
{
    if (m_isPreparingFrame)
        return;
    polish();
    update();
}

void PromptText::frameWasShown()
{
    if (!m_isFollowing)
        return;
    m_isFollowing = m_scroll->isMoving();
    if (!m_isFollowing)
        return;
    const auto next
        = std::ranges::find_if(m_shown, [](const ShownLine& shown) { return !shown.image; });
    if (next != m_shown.end())
        draw(*next);
    // Where showing a frame waits for the display, it is time for the next one. Where it does not,
    // wait here.
    const std::chrono::duration<double> wait(m_nextFrame - m_engine->now() - requestLatency);
    m_pacing.start(std::max(
        std::chrono::floor<std::chrono::milliseconds>(wait), std::chrono::milliseconds(0)));
}

void PromptText::updatePolish()
{
    if (!m_scroll || !m_lines)
        return;
    const QScopedValueRollback preparing(m_isPreparingFrame, true);
    const double now = m_engine->now();
    const double offset = m_scroll->offsetAt(now, frameInterval());
    m_lines->setVisibleTop(offset - firstLineTop * height());
    if (std::exchange(m_areLinesNew, false))
        takeOverLines();
    for (ShownLine& shown : m_shown) {
        if (!shown.image && isInSight(shown))
            draw(shown);
    }

    m_isFollowing = m_scroll->isMoving();
    const double interval = frameInterval() > 0 ? frameInterval() : usualFrameInterval;
    // On the beat of the last frames, if this one is; a frame may be prepared more than once.
    const bool isOnBeat = std::abs(now - m_nextFrame) < interval / 2;
    m_nextFrame = (isOnBeat ? m_nextFrame : now) + interval;
}

void PromptText::redrawAllLines()
{
    m_shown.clear();
    m_areLinesNew = true;
    requestFrame();
}

/// The lines that are in sight get their pictures now. One that is about to come gets its picture
/// when a frame has been shown, and there is time.
void PromptText::takeOverLines()
{
    std::vector<ShownLine> before = std::exchange(m_shown, {});
    for (const PromptLine& line : m_lines->visibleLines()) {
        const auto same = std::ranges::find_if(
            before, [&](const ShownLine& shown) { return shown.line.looksLike(line); });
        if (same == before.end()) {
            m_shown.push_back({ line, std::nullopt });
            continue;
        }
        m_shown.push_back(std::move(*same));
        m_shown.back().line = line;
        before.erase(same);
    }
}

void PromptText::draw(ShownLine& shown)
{
    const double scale = window() ? window()->effectiveDevicePixelRatio() : 1;
    shown.image = LineImage::of(shown.line, m_lines->shownTypography(), m_color, scale, m_outline);
    shown.imageId = ++m_lastImageId;
}

/// Whether some of its ink can be on the card. Stacked accents may leave the line's box.
bool PromptText::isInSight(const ShownLine& shown) const
{
    const QTextLine line = shown.line.inPiece();
    const double top = shown.line.baseline - line.ascent() - line.height() / 2;
    return top * m_lines->shownTypography().scale - m_lines->visibleTop() < height();
}

QSGNode* PromptText::updatePaintNode(QSGNode* root, UpdatePaintNodeData* /*data*/)
{
    auto* const node = root ? static_cast<FadingLinesNode*>(root) : new FadingLinesNode(*window());
    std::vector<FadingLinesNode::Picture> pictures;
    for (const ShownLine& shown : m_shown) {
        if (shown.image && !shown.image->pixels.isNull())
            pictures.push_back({ shown.imageId, shown.image->pixels, placeOf(shown) });
    }
    node->show(pictures, height(), window()->effectiveDevicePixelRatio());
    return node;
}

QRectF PromptText::placeOf(const ShownLine& shown) const
{
    // The picture's columns are device pixels.
    const double scale = window()->effectiveDevicePixelRatio();
    const PromptTypography& typography = m_lines->shownTypography();
    const double frameLeft = (width() - typography.width * typography.scale) / 2;
    return shown.image->place.translated(std::round(frameLeft * scale) / scale,
        shown.line.baseline * typography.scale - m_lines->visibleTop());
}

double PromptText::frameInterval() const
{
    const QScreen* const screen = window() ? window()->screen() : nullptr;
    return screen && screen->refreshRate() > 0 ? 1 / screen->refreshRate() : 0;
}

} // namespace Orvello
