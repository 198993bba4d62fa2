#include "Orvello/Prompting/Text/BidiLine.h"

#include <algorithm>
#include <optional>

namespace Orvello::BidiLine {

namespace {

/// How far away a strong character still counts. Only a bound for hostile texts.
constexpr qsizetype reach = 1000;

constexpr QChar leftToRightMark(0x200E);
constexpr QChar rightToLeftMark(0x200F);
constexpr QChar arabicLetterMark(0x061C);

/// The mark with the direction of the character that `text` has at `index`, if that is a strong
/// one.
std::optional<QChar> strongMark(QStringView text, qsizetype index)
{
    if (text[index].isLowSurrogate())
        return std::nullopt; // Its pair's direction is found at the first half.
    char32_t character = text[index].unicode();
    if (text[index].isHighSurrogate() && index + 1 < text.size())
        character = QChar::surrogateToUcs4(text[index], text[index + 1]);
    switch (QChar::direction(character)) {
    case QChar::DirL:
        return leftToRightMark;
    case QChar::DirR:
        return rightToLeftMark;
    case QChar::DirAL:
        return arabicLetterMark;
    default:
        return std::nullopt;
    }
}

std::optional<QChar> strongMarkBefore(QStringView text, qsizetype end)
{
    const qsizetype stop = std::max<qsizetype>(end - reach, 0);
    for (qsizetype i = end - 1; i >= stop && !isParagraphEnd(text[i]); --i) {
        if (const auto mark = strongMark(text, i))
            return mark;
    }
    return std::nullopt;
}

std::optional<QChar> strongMarkAfter(QStringView text, qsizetype start)
{
    const qsizetype stop = std::min(start + reach, text.size());
    for (qsizetype i = start; i < stop && !isParagraphEnd(text[i]); ++i) {
        if (const auto mark = strongMark(text, i))
            return mark;
    }
    return std::nullopt;
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

QString cutOut(const QString& text, qsizetype start, qsizetype end, bool paragraphIsRightToLeft)
{
    const QChar paragraphMark = paragraphIsRightToLeft ? rightToLeftMark : leftToRightMark;
    const auto before = strongMarkBefore(text, start).value_or(paragraphMark);
    const auto after = strongMarkAfter(text, end).value_or(paragraphMark);
    const QStringView line = QStringView(text).sliced(start, end - start);

    QString result;
    result.reserve(line.size() + 3);
    if (before != paragraphMark || line.isRightToLeft() != paragraphIsRightToLeft)
        result += paragraphMark;
    if (before != paragraphMark)
        result += before;
    result += line;
    if (after != paragraphMark)
        result += after;
    return result;
}

} // namespace Orvello::BidiLine
