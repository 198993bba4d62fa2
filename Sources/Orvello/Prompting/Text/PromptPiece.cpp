#include "Orvello/Prompting/Text/PromptPiece.h"

#include "Orvello/Prompting/Text/EmojiRuns.h"

#include <QGlyphRun>

#include <algorithm>

namespace Orvello {

namespace {

/// How much of a paragraph is laid out once more before its next part: enough to have a letter with
/// a direction in it.
constexpr qsizetype longestContext = 100;

/// Wider than any line, but small enough for every layout to count with.
constexpr double unlimitedWidth = 1e6;

/// The words of the same paragraph before `start`, on a line of their own. The direction of numbers
/// and punctuation marks after it depends on them.
QString contextBefore(const QString& text, qsizetype start)
{
    const qsizetype stop = std::max<qsizetype>(start - longestContext, 0);
    qsizetype from = start;
    while (from > stop && !isParagraphEnd(text[from - 1]))
        --from;
    if (from < start && text[from].isLowSurrogate())
        ++from;
    return from < start ? text.sliced(from, start - from) + QChar(QChar::LineSeparator) : QString();
}

QList<QTextLayout::FormatRange> formatsOf(const QString& text, const QFont& emojiFont)
{
    QTextCharFormat format;
    format.setFont(emojiFont);
    QList<QTextLayout::FormatRange> formats;
    for (const auto& [start, length] : EmojiRuns::in(text))
        formats.append({ static_cast<int>(start), static_cast<int>(length), format });
    return formats;
}

} // namespace

bool isParagraphEnd(QChar character)
{
    switch (character.unicode()) {
    case '\n':
    case '\v':
    case '\f':
    case '\r':
    case 0x0085: // next line
    case QChar::LineSeparator:
    case QChar::ParagraphSeparator:
        return true;
    default:
        return false;
    }
}

PromptPiece::PromptPiece(
    const QString& text, qsizetype start, bool isRightToLeft, const PromptTypography& typography)
    : m_start(start)
    , m_isRightToLeft(isRightToLeft)
{
    const QStringView rest = QStringView(text).sliced(start);
    const QStringView ahead = rest.first(std::min(longest, rest.size()));
    m_length = std::ranges::find_if(ahead, isParagraphEnd) - ahead.begin();
    m_endsParagraph = m_length < ahead.size() || ahead.size() == rest.size();
    if (!m_endsParagraph && ahead.back().isHighSurrogate())
        --m_length;
    const QString context = contextBefore(text, start);
    m_contextLength = context.size();
    if (context.isEmpty())
        m_isRightToLeft = ahead.first(m_length).isRightToLeft();

    QTextOption option(m_isRightToLeft ? Qt::AlignRight : Qt::AlignLeft);
    option.setTextDirection(m_isRightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    // The widths that glyphs have when they are drawn at fractions of a pixel.
    option.setUseDesignMetrics(true);
    m_layout.setFont(typography.font);
    m_layout.setTextOption(option);
    m_layout.setText(context + text.mid(start, m_length));
    m_layout.setFormats(formatsOf(m_layout.text(), typography.emojiFont));
    m_layout.setCacheEnabled(true); // Saves shaping the text again for drawing.
    m_layout.beginLayout();
    for (QTextLine line = m_layout.createLine(); line.isValid(); line = m_layout.createLine()) {
        const bool isContext = line.textStart() < m_contextLength;
        line.setLineWidth(isContext ? unlimitedWidth : typography.width);
    }
    m_layout.endLayout();
    findLines();
}

void PromptPiece::findLines()
{
    for (int i = 0; i < m_layout.lineCount(); ++i) {
        const QTextLine line = m_layout.lineAt(i);
        const QStringView characters
            = QStringView(m_layout.text()).mid(line.textStart(), line.textLength());
        if (line.textStart() >= m_contextLength
            && !std::ranges::all_of(characters, [](QChar each) { return each.isSpace(); }))
            m_lines.push_back(i);
    }
    const bool isWholeParagraph = m_contextLength == 0;
    if (m_lines.empty() && isWholeParagraph)
        m_lines.push_back(0);
}

qsizetype PromptPiece::lineStart(int index) const
{
    return m_start + line(index).textStart() - m_contextLength;
}

QString PromptPiece::lineText(int index) const
{
    return m_layout.text().mid(line(index).textStart(), line(index).textLength());
}

bool PromptLine::looksLike(const PromptLine& other) const
{
    if (piece == other.piece && index == other.index)
        return true;
    const QTextLine line = inPiece();
    const QTextLine otherLine = other.inPiece();
    return line.naturalTextWidth() == otherLine.naturalTextWidth()
        && line.glyphRuns() == otherLine.glyphRuns();
}

} // namespace Orvello
