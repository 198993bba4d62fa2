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
    static constexpr qsizetype maximumText = 40; ///< Of a version; a longer one is cut.

    QString version; ///< The version that decides which release is newer; never empty.
    QString displayVersion; ///< The version for people, else `version`.
    QString channel; ///< Empty for the releases that are meant for everybody.
    QUrl page; ///< Where a person downloads the release.

    friend bool operator==(const AppcastItem&, const AppcastItem&) = default;
};

/// Update feeds: RSS 2.0 with the elements of the Sparkle updater's namespace.
namespace Appcast {

/// The releases for the operating system, as `sparkle:os` names it, in the order of the feed; a
/// download without one is for every system. What a release demands of a system is not read: one
/// feed serves several, whose versions mean different things. Those without a version are left out.
/// Fails, with the
/// reason, on anything that is not one whole well-formed feed. Document type declarations are
/// refused: no feed needs one, and entities are how small documents become huge.
[[nodiscard]] Result<QList<AppcastItem>, QString> parse(
    const QByteArray& xml, const QString& operatingSystem);

/// Whether the one version is older than the other. The dotted numbers that a version starts with
/// come first; what follows them makes it an earlier one, "2.1-beta.2" before "2.1-beta.10" before
/// "2.1-rc" before "2.1"; after a plus sign nothing counts.
[[nodiscard]] bool isOlder(const QString& version, const QString& other);

/// The newest release for everybody that is newer than `version`; null without one.
[[nodiscard]] const AppcastItem* newest(const QList<AppcastItem>& items, const QString& version);

} // namespace Appcast
} // namespace Orvello
