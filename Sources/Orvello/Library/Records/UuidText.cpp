#include "Orvello/Library/Records/UuidText.h"

namespace Orvello::UuidText {
namespace {

bool isHexDigit(QChar character)
{
    return (character >= u'0' && character <= u'9') || (character >= u'A' && character <= u'F')
        || (character >= u'a' && character <= u'f');
}

bool isStandardForm(QStringView text)
{
    if (text.size() != 36)
        return false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool isHyphenPlace = i == 8 || i == 13 || i == 18 || i == 23;
        if (isHyphenPlace ? text[i] != u'-' : !isHexDigit(text[i]))
            return false;
    }
    return true;
}

} // namespace

QString format(const QUuid& uuid) { return uuid.toString(QUuid::WithoutBraces).toUpper(); }

std::optional<QUuid> parse(QStringView text)
{
    if (!isStandardForm(text))
        return std::nullopt;
    return QUuid::fromString(text);
}

} // namespace Orvello::UuidText
