#include "Orvello/Prompting/Text/PromptLines.h"

#include "Orvello/Foundation/Assign.h"
#include "Orvello/Prompting/Text/PromptFont.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

/// How long the main loop is held up at a time, in seconds: a quarter of a frame.
constexpr double sliceBudget = 0.004;

/// What asks for colour gets it, where this is installed: otherwise the search for a font would end
/// at the first plain one. macOS has a fixed order of its own.
constexpr auto emojiFamily = "Noto Color Emoji"_L1;

constexpr double smallestFontSize = 12;
constexpr double largestFontSize = 128;

/// A share of the font's size.
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
    if (!assign(m_text, text))
        return;
    m_moves.clear();
    m_sought.reset();
    restart(Place::Left);
    Q_EMIT textChanged();
}

void PromptLines::update(const QString& text, const TextDifferences& differences)
{
    m_text = text;
    m_moves.push_back(differences);
    if (m_sought)
        *m_sought = static_cast<qsizetype>(placeAfter(differences, static_cast<double>(*m_sought)));
    restart(Place::Kept);
    Q_EMIT textChanged();
}

void PromptLines::edit(const QString& text, const TextEdit& edit)
{
    m_text = text;
    if (!m_moves.empty())
        m_moves.push_back({ edit });
    if (m_sought && edit.position < *m_sought)
        *m_sought = std::max(edit.position, *m_sought + edit.inserted - edit.removed);
    if (canLayOut())
        layOut(newest().edited(text, edit));
    Q_EMIT textChanged();
}

void PromptLines::setFontSize(double points)
{
    if (assign(m_fontSize, points))
        restart(Place::Kept);
}

void PromptLines::setTextWidth(double points)
{
    if (assign(m_textWidth, points))
        restart(Place::Kept);
}

PromptTypography PromptLines::typography() const
{
    // In this order what is no number is the smallest size.
    const double size
        = std::min(std::max(smallestFontSize, m_fontSize.value_or(0)), largestFontSize);
    QFont font(PromptFont::family());
    const double wholeSize = std::ceil(size);
    font.setPixelSize(static_cast<int>(wholeSize));
    font.setWeight(QFont::DemiBold);
    font.setHintingPreference(QFont::PreferNoHinting);
    const double scale = size / wholeSize;
    QFont emojiFont = font;
    emojiFont.setFamilies({ PromptFont::family(), emojiFamily });
    return { font, emojiFont, m_textWidth / scale, relativeLineSpacing * wholeSize, scale };
}

void PromptLines::setReadingTop(double points) { m_readingTop = points; }

void PromptLines::setVisibleTop(double points)
{
    if (assign(m_visibleTop, points))
        showVisibleLines();
}

void PromptLines::setVisibleHeight(double points)
{
    if (assign(m_visibleHeight, points))
        showVisibleLines();
}

bool PromptLines::isLaidOut() const { return !m_next && m_shown.isComplete(); }

std::size_t PromptLines::positionBytes() const
{
    return static_cast<std::size_t>(m_shown.lineCount()) * PromptLayout::bytesPerLine;
}

PromptLayout& PromptLines::newest() { return m_next ? *m_next : m_shown; }

/// Whether size and width are known, and the width is a number.
bool PromptLines::canLayOut() const { return m_fontSize && m_textWidth > 0; }

void PromptLines::restart(Place place)
{
    m_place = place;
    if (canLayOut())
        layOut(PromptLayout(m_text, typography()));
}

void PromptLines::layOut(PromptLayout layout)
{
    m_next = std::move(layout);
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
    const double readingTop = m_readingTop;
    adoptWhenReady();
    updateContentHeight();
    if (m_readingTop != readingTop)
        Q_EMIT readingTopMoved();
    tellFound();
}

void PromptLines::find(qsizetype character)
{
    m_sought = character;
    tellFound();
}

void PromptLines::tellFound()
{
    if (!m_sought || m_next)
        return;
    const double top = m_shown.topOfLineWith(*m_sought) * m_shown.typography().scale;
    if (!m_shown.isComplete() && heightOf(m_shown) < top + m_visibleHeight + margin)
        return;
    m_sought.reset();
    Q_EMIT found(top);
}

/// Whether what is going to be visible is laid out.
bool PromptLines::isNextReady(double readingTop) const
{
    const double visibleBottom
        = m_visibleTop + (readingTop - m_readingTop) + m_visibleHeight + margin;
    return m_next->isComplete() || heightOf(*m_next) >= visibleBottom || m_shown.lineCount() == 0;
}

void PromptLines::adoptWhenReady()
{
    double readingTop = m_readingTop;
    if (m_next && m_place == Place::Kept) {
        double character = m_shown.characterAt(readingTop / m_shown.typography().scale);
        for (const TextDifferences& differences : m_moves)
            character = placeAfter(differences, character);
        readingTop = m_next->topOf(character) * m_next->typography().scale;
    }
    if (!m_next || !isNextReady(readingTop)) {
        showVisibleLines();
        return;
    }
    const PromptTypography before = m_shown.typography();
    m_shown = *std::exchange(m_next, std::nullopt);
    m_visibleTop += readingTop - m_readingTop;
    m_readingTop = readingTop;
    m_place = Place::Left;
    m_moves.clear();
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
    if (assign(m_contentHeight, height))
        Q_EMIT contentHeightChanged();
}

void PromptLines::showVisibleLines()
{
    const double scale = m_shown.typography().scale;
    const double nextLine = m_shown.smallestPitch();
    const auto range = m_shown.linesBetween((m_visibleTop - margin) / scale,
        (m_visibleTop + m_visibleHeight + margin) / scale + nextLine);
    const auto before = std::exchange(m_visibleRange, range);
    if (before == range)
        return;
    // Lines of an earlier layout are no help in this one.
    std::vector<PromptLine> lines = m_shown.lines(
        range.first, range.second, before ? m_visibleLines : std::vector<PromptLine>());
    const bool isSame = std::ranges::equal(
        lines, m_visibleLines, [](const PromptLine& line, const PromptLine& shown) {
            return line.baseline == shown.baseline && line.looksLike(shown);
        });
    m_visibleLines = std::move(lines);
    if (!isSame)
        Q_EMIT visibleLinesChanged();
}

} // namespace Orvello
