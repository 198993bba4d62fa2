#pragma once

#include "Orvello/Presentations/Slideshow/DeckOutline.h"

#include <QObject>
#include <QString>
#include <QUuid>

#include <optional>
#include <set>
#include <utility>

namespace Orvello {

class LibraryStore;
class SlideSyncService;
struct LibraryChange;
struct PresenterApp;

/// Whether the slideshow that is followed shows another deck than the one that the active script
/// was made from. As long as the presenter does not tell, it is taken for the script's.
class PresentedDeck final : public QObject {
    Q_OBJECT

public:
    /// Both must outlive it.
    PresentedDeck(
        const LibraryStore& library, const SlideSyncService& sync, QObject* parent = nullptr);

    bool isOther() const { return m_isOther; }
    QString name() const; ///< Of the deck that is presented; empty when nobody tells.
    /// The script whose notes go with the deck best, if one does and another one is active.
    const std::optional<QUuid>& fittingScript() const { return m_fittingScript; }
    const PresenterApp* app() const; ///< Who presents it, or null.

    /// The reader wants the active script's notes all the same. Counts for this script with a deck
    /// of this name, until the program ends.
    void accept();

Q_SIGNALS:
    void changed();

private:
    void followScripts(const LibraryChange& change);
    void update();

    const LibraryStore& m_library;
    const SlideSyncService& m_sync;
    bool m_isOther = false;
    std::optional<QUuid> m_fittingScript;
    std::set<std::pair<QUuid, QString>> m_accepted;
};

} // namespace Orvello
