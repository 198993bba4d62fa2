#pragma once

#include <QString>
#include <QUuid>

#include <optional>

/// The standard text of a UUID: 36 characters, hyphenated.
namespace Orvello::UuidText {

/// Upper case, as in "E621E1F8-C36C-495A-93FC-0C247A3E6E5F".
[[nodiscard]] inline QString format(const QUuid& uuid)
{
    return uuid.toString(QUuid::WithoutBraces).toUpper();
}

/// Reads either case, and nothing but the 36 characters: no braces, no white space.
[[nodiscard]] inline std::optional<QUuid> parse(const QString& text)
{
    const QUuid uuid = QUuid::fromString(text);
    if (text.compare(uuid.toString(QUuid::WithoutBraces), Qt::CaseInsensitive) != 0)
        return std::nullopt;
    return uuid;
}

} // namespace Orvello::UuidText
