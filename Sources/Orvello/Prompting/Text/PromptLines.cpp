#include "Orvello/Prompting/Text/PromptLines.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

/// How long the main loop is kept at a time, in seconds: a quarter of a frame.
constexpr double sliceBudget = 0.004;

/// Signs in colour, where this is installed: else the search for a font that has them would end at
/// the first plain one. macOS has a fixed order of its own.
constexpr auto emojiFamily = "Noto Color Emoji"_L1;

constexpr double largestFontSize = 1000;

/// Relative to the font's size.
constexpr double relativeLineSpacing = 0.28;

/// Lines just outside the visible part are ready, too: their accents may reach into it.
constexpr double margin = 8;

double heightOf(const PromptLayout& layout) { return layout.height() * layout.typography().scale; }

} // namespace

PromptLines::PromptLines(TimeSource& time, QObject* parent)
    : QObject(parent)
    , m_time(time)
{
}

PromptLines::~PromptLines() = default;

void PromptLines::setText(const QString& text)
{
    if (text == m_text)
        return;
    m_text = text;
    restart();
    Q_EMIT textChanged();
}

void PromptLines::setFontFamily(const QString& family)
{
    if (std::exchange(m_fontFamily, family) != family)
        typographyWasSet();
}

void PromptLines::setFontSize(double points)
{
    if (std::exchange(m_fontSize, points) != points)
        typographyWasSet();
}

void PromptLines::setTextWidth(double points)
{
    if (std::exchange(m_textWidth, points) != points)
        typographyWasSet();
}

void PromptLines::typographyWasSet()
{
    restart();
    Q_EMIT typographyChanged();
}

PromptTypography PromptLines::typography() const
{
    const double size = std::clamp(m_fontSize, 1.0, largestFontSize);
    QFont font(QStringList { m_fontFamily, emojiFamily });
    const double wholeSize = std::ceil(size);
    font.setPixelSize(static_cast<int>(wholeSize));
    font.setWeight(QFont::DemiBold);
    font.setHintingPreference(QFont::PreferNoHinting);
    const double scale = size / wholeSize;
    return { font, m_textWidth / scale, relativeLineSpacing * wholeSize, scale };
}

void PromptLines::setVisibleTop(double points)
{
    if (std::exchange(m_visibleTop, points) == points)
        return;
    showVisibleLines();
    Q_EMIT visiblePartChanged();
}

void PromptLines::setVisibleHeight(double points)
{
    if (std::exchange(m_visibleHeight, points) == points)
        return;
    showVisibleLines();
    Q_EMIT visiblePartChanged();
}

bool PromptLines::isLaidOut() const { return !m_next && m_shown.isComplete(); }

std::size_t PromptLines::positionBytes() const
{
    return static_cast<std::size_t>(m_shown.lineCount()) * PromptLayout::bytesPerLine;
}

PromptLayout& PromptLines::newest() { return m_next ? *m_next : m_shown; }

void PromptLines::restart()
{
    if (!(m_fontSize > 0 && m_textWidth > 0))
        return; // Not known yet, or no number.
    m_next = PromptLayout(m_text, typography(), newest());
    layOutSlice();
}

void PromptLines::layOutSlice()
{
    const double start = m_time.now();
    PromptLayout& layout = newest();
    while (!layout.isComplete() && m_time.now() - start < sliceBudget)
        layout.step();

    m_slice.reset();
    if (!layout.isComplete())
        m_slice = m_time.callAfter(0, [this] { layOutSlice(); });
    adoptWhenReady();
    updateContentHeight();
}

void PromptLines::adoptWhenReady()
{
    const double visibleBottom = m_visibleTop + m_visibleHeight + margin;
    const bool isReady = m_next
        && (m_next->isComplete() || heightOf(*m_next) >= visibleBottom || m_shown.lineCount() == 0);
    if (!isReady) {
        showVisibleLines();
        return;
    }
    const PromptTypography before = m_shown.typography();
    m_shown = *std::exchange(m_next, std::nullopt);
    m_visibleRange.reset();
    showVisibleLines();
    if (m_shown.typography() != before)
        Q_EMIT shownTypographyChanged();
}

void PromptLines::updateContentHeight()
{
    const PromptLayout& layout = newest();
    const double height
        = layout.isComplete() ? heightOf(layout) : std::max(heightOf(layout), m_contentHeight);
    if (std::exchange(m_contentHeight, height) != height)
        Q_EMIT contentHeightChanged();
}

void PromptLines::showVisibleLines()
{
    const double scale = m_shown.typography().scale;
    const auto range = m_shown.linesBetween(
        (m_visibleTop - margin) / scale, (m_visibleTop + m_visibleHeight + margin) / scale);
    if (std::exchange(m_visibleRange, range) == range)
        return;
    std::vector<PromptLine> lines;
    for (PromptLayout::Index line = range.first; line < range.second; ++line)
        lines.push_back(m_shown.line(line));
    if (std::exchange(m_visibleLines, lines) != lines)
        Q_EMIT visibleLinesChanged();
}

} // namespace Orvello
