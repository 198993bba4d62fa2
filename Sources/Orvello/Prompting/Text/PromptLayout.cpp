#include "Orvello/Prompting/Text/PromptLayout.h"

#include "Orvello/Prompting/Text/BidiLine.h"

#include <QTextLayout>

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

namespace Orvello {

using BidiLine::isParagraphEnd;

namespace {

constexpr qsizetype longestText = std::numeric_limits<int>::max();

constexpr quint32 startMask = std::numeric_limits<int>::max();

/// How many characters, from the first end of a paragraph on, are that end.
qsizetype paragraphEndLength(QStringView fromEnd) { return fromEnd.startsWith(u"\r\n") ? 2 : 1; }

/// Compared blockwise, at the speed of memory, and then character by character: a keystroke in a
/// script of a million words waits for this.
constexpr qsizetype block = 4096;

qsizetype commonPrefix(QStringView a, QStringView b)
{
    const qsizetype shorter = std::min(a.size(), b.size());
    qsizetype length = 0;
    while (length + block <= shorter && a.sliced(length, block) == b.sliced(length, block))
        length += block;
    while (length < shorter && a[length] == b[length])
        ++length;
    return length;
}

qsizetype commonSuffix(QStringView a, QStringView b)
{
    const qsizetype shorter = std::min(a.size(), b.size());
    const auto fromEnd = [](QStringView text, qsizetype distance, qsizetype length) {
        return text.sliced(text.size() - distance, length);
    };
    qsizetype length = 0;
    while (length + block <= shorter
        && fromEnd(a, length + block, block) == fromEnd(b, length + block, block))
        length += block;
    while (length < shorter && fromEnd(a, length + 1, 1) == fromEnd(b, length + 1, 1))
        ++length;
    return length;
}

/// Where the paragraph begins that contains `position`, if that is less than a step away.
std::optional<qsizetype> nearParagraphStart(QStringView text, qsizetype position)
{
    const qsizetype stop = std::max<qsizetype>(position - PromptLayout::stepLength, 0);
    for (qsizetype i = position; i > stop; --i) {
        if (isParagraphEnd(text[i - 1]))
            return i;
    }
    return stop == 0 ? std::optional<qsizetype>(0) : std::nullopt;
}

void lay(QTextLayout& layout, const QString& text, const PromptTypography& typography,
    Qt::LayoutDirection direction)
{
    QTextOption option(Qt::AlignLeft);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setTextDirection(direction);
    // The widths that glyphs have when they are drawn at fractions of a pixel.
    option.setUseDesignMetrics(true);
    layout.setFont(typography.font);
    layout.setTextOption(option);
    layout.setText(text);
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine())
        line.setLineWidth(typography.width);
    layout.endLayout();
}

} // namespace

PromptLayout::PromptLayout(
    const QString& text, const PromptTypography& typography, const PromptLayout& previous)
    : m_text(text.left(longestText))
    , m_typography(typography)
    , m_isComplete(m_text.isEmpty())
{
    QTextLayout empty;
    lay(empty, QString(), typography, Qt::LeftToRight);
    m_fontAscent = empty.lineAt(0).ascent();
    m_fontDescent = empty.lineAt(0).descent();
    if (typography != previous.m_typography || m_isComplete)
        return;

    const qsizetype before = commonPrefix(m_text, previous.m_text);
    const qsizetype after = commonSuffix(
        QStringView(m_text).sliced(before), QStringView(previous.m_text).sliced(before));
    keepTail(previous, previous.m_text.size() - after);
    keepLinesBefore(previous, before);
}

void PromptLayout::keepLinesBefore(const PromptLayout& previous, qsizetype change)
{
    // A line feed may have come or gone behind a carriage return: a change of that line, too.
    if (change > 0 && m_text[change - 1] == u'\r')
        --change;

    Index kept = 0;
    if (const auto paragraph = nearParagraphStart(m_text, change)) {
        const auto first = std::ranges::lower_bound(
            previous.m_lines, *paragraph, {}, [](const Line& line) { return line.start; });
        kept = first - previous.m_lines.begin();
    } else {
        // Deep inside a long paragraph. A shorter word can be drawn up into the line before; one
        // line more stays out for scripts whose breaks depend on more than a word.
        const auto next = std::ranges::upper_bound(
            previous.m_lines, change, {}, [](const Line& line) { return line.start; });
        kept = std::max<Index>(next - previous.m_lines.begin() - 3, 0);
    }

    m_lines.assign(previous.m_lines.begin(), previous.m_lines.begin() + kept);
    if (kept == previous.lineCount()) {
        m_position = previous.m_position;
        m_nextTop = previous.m_nextTop;
        return;
    }
    const Line& next = previous.m_lines[static_cast<std::size_t>(kept)];
    m_position.start = next.start;
    m_position.isParagraphStart = next.start == 0 || isParagraphEnd(m_text[next.start - 1]);
    m_position.isRightToLeft = next.isRightToLeft;
    m_nextTop = next.top;
}

void PromptLayout::keepTail(const PromptLayout& previous, qsizetype firstUnchanged)
{
    auto first = std::ranges::upper_bound(
        previous.m_lines, firstUnchanged, {}, [](const Line& line) { return line.start; });
    first = std::find_if(first, previous.m_lines.end(),
        [&](const Line& line) { return isParagraphEnd(previous.m_text[line.start - 1]); });
    if (first == previous.m_lines.end())
        return;

    const auto shift = static_cast<int>(m_text.size() - previous.m_text.size());
    m_tail = { { first, previous.m_lines.end() }, previous.m_position, previous.m_nextTop,
        previous.m_isComplete };
    m_tail.end.start += shift;
    for (Line& line : m_tail.lines)
        line.start = static_cast<quint32>(static_cast<int>(line.start) + shift) & startMask;
}

bool PromptLayout::reuseTail()
{
    if (m_tail.lines.empty() || !m_position.isParagraphStart
        || m_position.start != m_tail.lines.front().start)
        return false;

    const double lift = m_nextTop - m_tail.lines.front().top;
    for (Line& line : m_tail.lines)
        line.top += lift;
    m_lines.insert(m_lines.end(), m_tail.lines.begin(), m_tail.lines.end());
    m_position = m_tail.end;
    m_nextTop = m_tail.nextTop + lift;
    m_isComplete = m_tail.isComplete;
    m_tail = {};
    return true;
}

void PromptLayout::step()
{
    if (m_isComplete || reuseTail())
        return;

    const Piece piece = nextPiece();
    std::vector<BrokenLine> lines = brokenLines(piece);
    qsizetype length = piece.length;
    if (!piece.endsParagraph && lines.size() > 1) {
        // More text may follow on the last line: it is laid out again, with that text. A single
        // line that long consists of characters without width; it is cut here.
        length = lines.back().start;
        lines.pop_back();
    }
    append(lines);
    if (piece.endsParagraph)
        endParagraph(length);
    else
        m_position = { m_position.start + length, false, piece.isRightToLeft };
}

PromptLayout::Piece PromptLayout::nextPiece() const
{
    const QStringView rest = QStringView(m_text).sliced(m_position.start);
    const QStringView ahead = rest.first(std::min(stepLength, rest.size()));
    Piece piece;
    piece.length = std::ranges::find_if(ahead, isParagraphEnd) - ahead.begin();
    piece.endsParagraph = piece.length < ahead.size() || ahead.size() == rest.size();
    if (!piece.endsParagraph && ahead.back().isHighSurrogate())
        --piece.length;
    piece.isRightToLeft = m_position.isParagraphStart ? ahead.first(piece.length).isRightToLeft()
                                                      : m_position.isRightToLeft;
    return piece;
}

std::vector<PromptLayout::BrokenLine> PromptLayout::brokenLines(const Piece& piece) const
{
    QTextLayout layout;
    lay(layout, m_text.sliced(m_position.start, piece.length), m_typography,
        piece.isRightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    std::vector<BrokenLine> lines;
    lines.reserve(static_cast<std::size_t>(layout.lineCount()));
    for (int i = 0; i < layout.lineCount(); ++i) {
        const QTextLine line = layout.lineAt(i);
        lines.push_back({ line.textStart(), std::max(line.ascent(), m_fontAscent),
            std::max(line.descent(), m_fontDescent), piece.isRightToLeft });
    }
    return lines;
}

void PromptLayout::append(const std::vector<BrokenLine>& lines)
{
    for (const BrokenLine& line : lines) {
        const auto start = static_cast<quint32>(m_position.start + line.start);
        m_lines.push_back(
            { m_nextTop, start & startMask, line.isRightToLeft, static_cast<float>(line.ascent) });
        m_nextTop += std::ceil(line.ascent + line.descent) + m_typography.lineSpacing;
    }
}

void PromptLayout::endParagraph(qsizetype length)
{
    const QStringView fromEnd = QStringView(m_text).sliced(m_position.start + length);
    m_isComplete = fromEnd.isEmpty();
    const qsizetype endLength = m_isComplete ? 0 : paragraphEndLength(fromEnd);
    m_position = { m_position.start + length + endLength, true, false };
    if (m_isComplete)
        m_lines.shrink_to_fit();
}

double PromptLayout::height() const
{
    return m_lines.empty() ? 0 : m_nextTop - m_typography.lineSpacing;
}

double PromptLayout::smallestPitch() const
{
    return std::ceil(m_fontAscent + m_fontDescent) + m_typography.lineSpacing;
}

qsizetype PromptLayout::lineStart(Index line) const
{
    return m_lines[static_cast<std::size_t>(line)].start;
}

qsizetype PromptLayout::lineEnd(Index line) const
{
    qsizetype end = line + 1 < lineCount() ? lineStart(line + 1) : m_position.start;
    while (end > lineStart(line) && m_text[end - 1].isSpace())
        --end;
    return end;
}

PromptLine PromptLayout::line(Index index) const
{
    const Line& line = m_lines[static_cast<std::size_t>(index)];
    const bool isRightToLeft = line.isRightToLeft;
    QString text = BidiLine::cutOut(m_text, line.start, lineEnd(index), isRightToLeft);
    // Where a word was divided the hyphen shows; alone, the line would not know that it was.
    if (text.endsWith(QChar(QChar::SoftHyphen)))
        text.back() = u'-';
    return { text, line.top + line.ascent, isRightToLeft };
}

std::pair<PromptLayout::Index, PromptLayout::Index> PromptLayout::linesBetween(
    double top, double bottom) const
{
    const auto from = std::ranges::upper_bound(m_lines, top, {}, &Line::top);
    const auto to = std::ranges::lower_bound(m_lines, bottom, {}, &Line::top);
    const Index first = std::max<Index>(from - m_lines.begin() - 1, 0);
    return { first, std::max<Index>(to - m_lines.begin(), first) };
}

} // namespace Orvello
