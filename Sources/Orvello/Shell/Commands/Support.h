#pragma once

#include <QString>
#include <QUrl>

namespace Orvello::Support {

/// The version and the build for people, as in "2.1 (57)"; an unknown one is a question mark.
[[nodiscard]] QString versionText(const QString& version, const QString& build);

/// A draft mail to the support address; `system` has the system's name and version. An empty
/// address gives an empty link.
[[nodiscard]] QUrl mailLink(
    const QString& address, const QString& versionText, const QString& operatingSystem);

} // namespace Orvello::Support
