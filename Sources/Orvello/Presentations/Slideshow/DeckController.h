#pragma once

#include "Orvello/Foundation/TextDifferences.h"
#include "Orvello/Foundation/TextEdit.h"
#include "Orvello/Library/Records/Script.h"
#include "Orvello/Presentations/Slideshow/PresentedDeck.h"
#include "Orvello/Presentations/Slideshow/SlideSyncService.h"

#include <QObject>
#include <QString>
#include <QUuid>

#include <optional>

namespace Orvello {

class LibraryStore;
class SettingsStore;
struct LibraryChange;

/// Decides what the prompter shows: one slide's speaker notes while slide tracking is on and the
/// active script has slides, its whole text otherwise. A slideshow's slide takes precedence over
/// the one stepped to by hand, and hides the notes while it shows another deck.
class DeckController final : public QObject {
    Q_OBJECT

public:
    /// Everything must outlive the controller.
    DeckController(const LibraryStore& library, const SettingsStore& settings,
        const SlideSyncService& sync, QObject* parent = nullptr);

    const QString& promptText() const { return m_promptText; }
    /// Goes up by 1 whenever another unit is shown, which then starts at its top.
    qint64 slideChangeToken() const { return m_slideChangeToken; }
    /// Whether one slide's notes are shown.
    bool trackingActive() const { return m_trackingActive; }
    qint64 displayIndex() const { return m_displayIndex; } ///< 0-based; 0 without slides.
    qint64 slideCount() const { return m_slideCount; } ///< How many slides the active script has.
    /// The title of the slide shown, if any.
    const std::optional<QString>& slideTitle() const { return m_slideTitle; }
    SlideSyncService::State syncState() const { return m_syncState; }

    /// Which deck the slideshow shows.
    PresentedDeck& presentedDeck() { return m_presentedDeck; }
    /// Whether slide tracking shows no notes because those of the active script are another deck's.
    bool isOtherDeck() const { return m_isOtherDeck; }

    /// Shows the unit that has that place of the active script's body, and returns the place in its
    /// text; nothing while a slideshow shows another slide.
    std::optional<qsizetype> goTo(qsizetype position);

    void showPreviousSlide();
    void showNextSlide();

Q_SIGNALS:
    /// The edit leads from the text before to the new one.
    void promptTextChanged(const Orvello::TextEdit& edit);
    /// A deck was read anew: the text is the one before with these differences.
    void promptTextUpdated(const Orvello::TextDifferences& differences);
    void slideChangeTokenChanged();
    void trackingActiveChanged();
    void displayIndexChanged();
    void slideCountChanged();
    void slideTitleChanged();
    void syncStateChanged();
    void otherDeckChanged();

private:
    /// The text shown, with what identifies it: the script, and the slide if it is one.
    struct Unit {
        QString text;
        std::optional<QString> title;
        std::optional<qint64> slide; ///< 0-based; none when the unit is the whole script.
        bool isOtherDeck = false; ///< The text only says so.
    };

    void noteEdit(const LibraryChange& change);
    void followLiveSlide(const std::optional<qint64>& slide);
    void setSyncState(SlideSyncService::State state);
    void recompute();
    void settlePosition(const Script* script);
    void followSlide(const QList<SlideNote>& slides);
    Unit unitOf(const Script* script) const;
    std::optional<TextEdit> editTo(const Unit& unit, bool isOtherUnit) const;
    void publish(const Script* script, const Unit& unit);

    const LibraryStore& m_library;
    const SettingsStore& m_settings;
    const SlideSyncService& m_sync;
    PresentedDeck m_presentedDeck;
    QString m_promptText;
    qint64 m_slideChangeToken = 0;
    bool m_trackingActive = false;
    qint64 m_displayIndex = 0;
    qint64 m_slideCount = 0;
    std::optional<QString> m_slideTitle;
    SlideSyncService::State m_syncState = SlideSyncService::State::Idle;
    bool m_isOtherDeck = false;
    qint64 m_manualIndex = 0; ///< Follows the live slide, so that it stays when the slideshow ends.
    /// What has changed in the last script's body since the text was published.
    std::optional<TextEdit> m_edit;
    bool m_isReadAnew = false; ///< The deck was, since the text was published.
    QList<SlideNote> m_slides; ///< Of the last script, as they were then.
    QString m_lastUnitKey;
    std::optional<QUuid> m_lastScriptID;
};

} // namespace Orvello
