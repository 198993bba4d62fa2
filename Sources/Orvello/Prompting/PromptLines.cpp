#include "Orvello/Prompting/PromptLines.h"

#include <QFontMetricsF>

#include <algorithm>
#include <cmath>
#include <utility>

namespace Orvello {

namespace {

/// How long the main loop is kept at a time, in seconds: a quarter of a frame.
constexpr double sliceBudget = 0.004;

constexpr double largestFontSize = 1000;

/// Relative to the font's size.
constexpr double relativeLineSpacing = 0.28;

/// Lines just outside the visible part are ready, too: their accents may reach into it.
constexpr double margin = 8;

/// At this distance single precision still tells a thousandth of a point.
constexpr double farthestOrigin = 4096;

/// What a slot shows that is not needed.
constexpr PromptLayout::Index noLine = -1;

} // namespace

PromptLines::PromptLines(TimeSource& time, QObject* parent)
    : QAbstractListModel(parent)
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
    QFont font(QStringList { m_fontFamily });
    font.setPixelSize(static_cast<int>(std::lround(size)));
    font.setWeight(QFont::DemiBold);
    font.setHintingPreference(QFont::PreferNoHinting);
    return { font, m_textWidth, relativeLineSpacing * size };
}

void PromptLines::setVisibleTop(double points)
{
    if (std::exchange(m_visibleTop, points) == points)
        return;
    keepOriginNear();
    showVisibleLines();
    Q_EMIT visiblePartChanged();
    Q_EMIT originYChanged();
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
        && (m_next->isComplete() || m_next->height() >= visibleBottom || m_shown.lineCount() == 0);
    if (isReady) {
        const bool typographyChanges = m_next->typography() != m_shown.typography();
        m_shown = *std::exchange(m_next, std::nullopt);
        for (Slot& slot : m_slots)
            slot.line.reset();
        if (typographyChanges)
            Q_EMIT lineTypographyChanged();
    }
    showVisibleLines();
}

void PromptLines::updateContentHeight()
{
    const PromptLayout& layout = newest();
    const double height
        = layout.isComplete() ? layout.height() : std::max(layout.height(), m_contentHeight);
    if (std::exchange(m_contentHeight, height) != height)
        Q_EMIT contentHeightChanged();
}

void PromptLines::keepOriginNear()
{
    if (std::abs(m_visibleTop - m_origin) <= farthestOrigin)
        return;
    m_origin = std::round(m_visibleTop);
    if (!m_slots.empty())
        Q_EMIT dataChanged(index(0), index(rowCount() - 1), { BaselineRole });
}

void PromptLines::showVisibleLines()
{
    const double height = m_visibleHeight + 2 * margin;
    if (m_shown.lineCount() > 0 && m_visibleHeight > 0)
        setSlotCount(static_cast<std::size_t>(std::ceil(height / m_shown.smallestPitch())) + 1);

    const auto [first, end]
        = m_shown.linesBetween(m_visibleTop - margin, m_visibleTop - margin + height);
    const auto slotCount = std::ssize(m_slots);
    for (PromptLayout::Index line = first; line < std::min(end, first + slotCount); ++line)
        fill(static_cast<std::size_t>(line % slotCount), line);
    for (std::size_t slot = 0; slot < m_slots.size(); ++slot) {
        if (!m_slots[slot].line)
            fill(slot, noLine);
    }
}

void PromptLines::setSlotCount(std::size_t count)
{
    const std::size_t before = m_slots.size();
    if (count == before)
        return;
    if (count > before)
        beginInsertRows({}, static_cast<int>(before), static_cast<int>(count) - 1);
    else
        beginRemoveRows({}, static_cast<int>(count), static_cast<int>(before) - 1);
    m_slots.resize(count);
    for (Slot& slot : m_slots)
        slot.line.reset();
    count > before ? endInsertRows() : endRemoveRows();
}

void PromptLines::fill(std::size_t slot, PromptLayout::Index line)
{
    if (m_slots[slot].line == line)
        return;
    m_slots[slot].line = line;
    PromptLine content = line == noLine ? PromptLine() : m_shown.line(line);
    if (std::exchange(m_slots[slot].content, content) == content)
        return;
    const QModelIndex changed = index(static_cast<int>(slot));
    Q_EMIT dataChanged(changed, changed, { LineTextRole, BaselineRole, IsRightToLeftRole });
}

int PromptLines::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_slots.size());
}

QVariant PromptLines::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const PromptLine& content = m_slots[static_cast<std::size_t>(index.row())].content;
    switch (role) {
    case LineTextRole:
        return content.text;
    case BaselineRole:
        return content.baseline - m_origin;
    case IsRightToLeftRole:
        return content.isRightToLeft;
    default:
        return {};
    }
}

QHash<int, QByteArray> PromptLines::roleNames() const
{
    return { { LineTextRole, "lineText" }, { BaselineRole, "baselineY" },
        { IsRightToLeftRole, "isRightToLeft" } };
}

} // namespace Orvello
