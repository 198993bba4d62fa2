#pragma once

#include "Orvello/Presentations/Presenters/AppleScriptRunner.h"

#include <QString>

#include <deque>
#include <functional>
#include <optional>

namespace Orvello {

/// One presentation application that the prompter can follow and import decks from.
struct PresenterApp {
    /// Asks the running application; the completion is called once, on the main loop.
    using Query = std::function<void(ScriptCompletion)>;

    QString displayName; ///< Also the owner name of its windows.
    QString logName; ///< In log lines, in the texts of errors and as the source of its decks.
    QString bundleIdentifier; ///< Or the desktop identifier, on a system without bundles.
    QString notesName; ///< What it calls the speaker's notes.
    QString permissionAdvice; ///< What to tell a user whose system does not let it be asked.
    Query askCurrentSlide; ///< Prints the number of the slide on screen, 1-based.
    Query askOpenDeck; ///< Prints the deck record of the front document, or fails with NO_DOCUMENT.
    /// Prints the name and, where that is cheap, the titles of the deck that is being presented.
    /// May be missing.
    Query askPresentedDeck = nullptr;
    bool hasDeckFiles = false; ///< Its decks are files that the importer reads by itself.
    bool isForThisSystem = true; ///< Somebody could have it here.
};

/// The presentation applications of this edition, in the order in which names are tried. Rows are
/// added at start-up and keep their addresses.
class PresenterTable {
public:
    const PresenterApp& add(PresenterApp app) { return m_apps.emplace_back(std::move(app)); }

    const std::deque<PresenterApp>& apps() const { return m_apps; }

    /// The application with exactly this display name; null for any other name or none.
    const PresenterApp* named(const std::optional<QString>& displayName) const;

    /// The application with exactly this bundle identifier; null for any other or none.
    const PresenterApp* identifiedBy(const std::optional<QString>& bundleIdentifier) const;

private:
    std::deque<PresenterApp> m_apps;
};

} // namespace Orvello
