#pragma once

#include <QString>
#include <QUuid>

#include <optional>

/// The standard text of a UUID: 36 characters, hyphenated.
namespace Orvello::UuidText {

/// Upper case, as in "E621E1F8-C36C-495A-93FC-0C247A3E6E5F".
[[nodiscard]] QString format(const QUuid& uuid);

/// Reads either case, and nothing but the 36 characters: no braces, no white space.
[[nodiscard]] std::optional<QUuid> parse(QStringView text);

} // namespace Orvello::UuidText
