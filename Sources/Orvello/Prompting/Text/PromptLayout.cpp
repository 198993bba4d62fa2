#include "Orvello/Prompting/Text/PromptLayout.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <memory>
#include <optional>

namespace Orvello {

namespace {

/// The bits that hold the start of a line.
constexpr quint32 startMask = (1U << 30) - 1;
constexpr qsizetype longestText = startMask;

/// How many characters the paragraph's end takes that `fromEnd` begins with.
qsizetype paragraphEndLength(QStringView fromEnd) { return fromEnd.startsWith(u"\r\n") ? 2 : 1; }

/// Where the spaces end that begin at `position`, or the paragraph.
qsizetype endOfSpaces(QStringView text, qsizetype position)
{
    while (position < text.size() && text[position].isSpace() && !isParagraphEnd(text[position]))
        ++position;
    return position;
}

/// Where the paragraph begins that contains `position`, if that is less than a piece away.
std::optional<qsizetype> nearParagraphStart(QStringView text, qsizetype position)
{
    const qsizetype stop = std::max<qsizetype>(position - PromptPiece::longest, 0);
    for (qsizetype i = position; i > stop; --i) {
        if (isParagraphEnd(text[i - 1]))
            return i;
    }
    return stop == 0 ? std::optional<qsizetype>(0) : std::nullopt;
}

} // namespace

PromptLayout::PromptLayout(const QString& text, const PromptTypography& typography)
    : m_text(text.left(longestText))
    , m_typography(typography)
    , m_isComplete(m_text.isEmpty())
{
    const PromptPiece empty(QString(), 0, false, typography);
    m_fontAscent = empty.line(0).ascent();
    m_fontDescent = empty.line(0).descent();
}

PromptLayout PromptLayout::edited(const QString& text, const TextEdit& edit) const
{
    PromptLayout result(text, m_typography);
    const qsizetype size = m_text.size() - edit.removed + edit.inserted;
    if (!result.m_isComplete && result.m_text.size() == size) {
        result.keepTail(*this, edit.position + edit.removed);
        result.keepLinesBefore(*this, edit.position);
    }
    return result;
}

void PromptLayout::keepLinesBefore(const PromptLayout& previous, qsizetype change)
{
    // A line feed may have come or gone after a carriage return, which changes that line, too.
    if (change > 0 && m_text[change - 1] == u'\r')
        --change;

    // A piece knows its own characters and whether the text ends after them.
    const qsizetype kept
        = nearParagraphStart(m_text, change).value_or(change - PromptPiece::longest);
    if (!previous.m_isComplete && previous.m_position.start <= kept) {
        m_lines = previous.m_lines;
        m_position = previous.m_position;
        m_nextTop = previous.m_nextTop;
        return;
    }
    // The piece that it is in is laid out again.
    auto next = std::ranges::upper_bound(
        previous.m_lines, kept, {}, [](const Line& line) { return line.start; });
    while (next != previous.m_lines.begin() && !std::prev(next)->beginsPiece)
        --next;
    if (next == previous.m_lines.begin())
        return;
    --next;
    m_lines.assign(previous.m_lines.begin(), next);
    m_position = { next->start, bool(next->isRightToLeft) };
    m_nextTop = next->top;
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
    if (m_tail.lines.empty() || m_position.start != m_tail.lines.front().start)
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

    const PromptPiece piece(m_text, m_position.start, m_position.isRightToLeft, m_typography);
    const int lineCount = piece.lineCount();
    if (piece.endsParagraph()) {
        append(piece, lineCount);
        endParagraph(piece.end());
    } else if (lineCount > 1) {
        // More text may follow on the last line: it is laid out again, with that text.
        append(piece, lineCount - 1);
        m_position = { piece.lineStart(lineCount - 1), piece.isRightToLeft() };
    } else {
        // A single line that long consists of characters without width, and is cut here, or of
        // spaces that hang over its end.
        append(piece, lineCount);
        const bool endsInSpaces = m_text[piece.end() - 1].isSpace();
        m_position = { endsInSpaces ? endOfSpaces(m_text, piece.end()) : piece.end(),
            piece.isRightToLeft() };
    }
}

void PromptLayout::append(const PromptPiece& piece, int lineCount)
{
    for (int i = 0; i < lineCount; ++i) {
        const QTextLine line = piece.line(i);
        const double ascent = std::max(line.ascent(), m_fontAscent);
        const double descent = std::max(line.descent(), m_fontDescent);
        const auto start = static_cast<quint32>(piece.lineStart(i));
        m_lines.push_back({ m_nextTop, start & startMask, i == 0, piece.isRightToLeft(),
            static_cast<float>(ascent) });
        m_nextTop += std::ceil(ascent + descent) + m_typography.lineSpacing;
    }
}

void PromptLayout::endParagraph(qsizetype end)
{
    const QStringView fromEnd = QStringView(m_text).sliced(end);
    m_isComplete = fromEnd.isEmpty();
    m_position = { end + (m_isComplete ? 0 : paragraphEndLength(fromEnd)), false };
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

qsizetype PromptLayout::lineStart(Index line) const { return at(line).start; }

/// Where the line after the last one would begin.
PromptLayout::Line PromptLayout::end() const
{
    Line end;
    end.top = m_nextTop;
    end.start = static_cast<quint32>(m_isComplete ? m_text.size() : m_position.start) & startMask;
    return end;
}

double PromptLayout::characterAt(double top) const
{
    const auto after = std::ranges::upper_bound(m_lines, top, {}, &Line::top);
    if (after == m_lines.begin())
        return 0;
    const Line& line = *std::prev(after);
    const Line next = after == m_lines.end() ? end() : *after;
    const double share = std::min((top - line.top) / (next.top - line.top), 1.0);
    return line.start + share * (double(next.start) - line.start);
}

double PromptLayout::topOfLineWith(qsizetype character) const
{
    const auto after = std::ranges::upper_bound(
        m_lines, character, {}, [](const Line& line) { return qsizetype(line.start); });
    return after == m_lines.begin() ? 0 : std::prev(after)->top;
}

double PromptLayout::topOf(double character) const
{
    const auto after = std::ranges::upper_bound(
        m_lines, character, {}, [](const Line& line) { return double(line.start); });
    if (after == m_lines.begin())
        return 0;
    const Line& line = *std::prev(after);
    const Line next = after == m_lines.end() ? end() : *after;
    if (next.start <= line.start)
        return line.top;
    const double share
        = std::min((character - line.start) / (double(next.start) - line.start), 1.0);
    return line.top + share * (next.top - line.top);
}

std::vector<PromptLine> PromptLayout::lines(
    Index first, Index end, const std::vector<PromptLine>& known) const
{
    std::vector<PromptLine> result;
    for (Index line = first; line < end; ++line) {
        Index begin = line;
        while (!at(begin).beginsPiece)
            --begin;
        const auto isSame
            = [&](const PromptLine& other) { return other.piece->start() == lineStart(begin); };
        std::shared_ptr<const PromptPiece> piece;
        if (!result.empty() && isSame(result.back()))
            piece = result.back().piece;
        else if (const auto same = std::ranges::find_if(known, isSame); same != known.end())
            piece = same->piece;
        else
            piece = std::make_shared<PromptPiece>(
                m_text, lineStart(begin), at(begin).isRightToLeft, m_typography);
        result.push_back(
            { std::move(piece), static_cast<int>(line - begin), at(line).top + at(line).ascent });
    }
    return result;
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
