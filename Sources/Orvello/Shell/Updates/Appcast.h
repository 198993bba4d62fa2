#pragma once

#include "Orvello/Foundation/Result.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QUrl>

namespace Orvello {

/// One release as an update feed describes it. Texts are trimmed, and empty where the feed says
/// nothing.
struct AppcastItem {
    QString version; ///< The version that decides which release is newer; never empty.
    QString displayVersion; ///< The version for people, else `version`.
    QString channel; ///< Empty for the releases that are meant for everybody.
    QUrl page; ///< Where a person downloads the release.

    friend bool operator==(const AppcastItem&, const AppcastItem&) = default;
};

/// Update feeds: RSS 2.0 with the elements of the Sparkle updater's namespace.
namespace Appcast {

/// The releases for the operating system, as `sparkle:os` names it, in the order of the feed; a
/// download without one is for every system. Those without a version are left out. Fails, with the
/// reason, on anything that is not one whole well-formed feed. Document type declarations are
/// refused: no feed needs one, and entities are how small documents become huge.
[[nodiscard]] Result<QList<AppcastItem>, QString> parse(
    const QByteArray& xml, const QString& operatingSystem);

/// The newest release for everybody that is newer than `version`; null without one. The dotted
/// numbers that a version starts with count, and nothing after them.
[[nodiscard]] const AppcastItem* newest(const QList<AppcastItem>& items, const QString& version);

} // namespace Appcast
} // namespace Orvello
