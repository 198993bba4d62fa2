#pragma once

#include "Orvello/Foundation/Result.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QUrl>

#include <compare>

namespace Orvello {

/// One release as an update feed describes it. Texts are trimmed, and empty where it says nothing.
struct AppcastItem {
    QString version; ///< By which releases compare; never empty.
    QString displayVersion; ///< The version for people, else `version`.
    QString channel; ///< Empty for the releases that are meant for everybody.
    QString minimumSystemVersion;
    QString maximumSystemVersion;
    QUrl page; ///< Where a person downloads the release.

    friend bool operator==(const AppcastItem&, const AppcastItem&) = default;
};

/// Update feeds: RSS 2.0 with the elements of the Sparkle updater's namespace.
namespace Appcast {

/// Which program on which system looks for an update.
struct Host {
    QString version;
    QString systemVersion;
    QString
        operatingSystem; ///< As `sparkle:os` names it. A download without one is for every system.
};

/// The releases for the operating system in the order of the feed; those without a version are left
/// out. Fails, with the reason, on anything that is not one whole well-formed feed. Document type
/// declarations are refused: no feed needs one, and entities are how small documents become huge.
[[nodiscard]] Result<QList<AppcastItem>, QString> parse(
    const QByteArray& xml, const QString& operatingSystem);

/// Orders versions as the feed format does: part by part, numbers by value, missing numbers as
/// zero; letters after a number make a version older ("1.0b2" comes before "1.0"); everything from
/// a hyphen on is ignored.
[[nodiscard]] std::strong_ordering compareVersions(const QString& left, const QString& right);

/// The newest release for everybody that runs on the host's system and is newer than the host's
/// own; null without one.
[[nodiscard]] const AppcastItem* newest(const QList<AppcastItem>& items, const Host& host);

} // namespace Appcast
} // namespace Orvello
