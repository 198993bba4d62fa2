#pragma once

#include "Orvello/Prompting/Engine/ReadingClock.h"
#include "Orvello/Prompting/Text/PromptLines.h"
#include "Orvello/Prompting/View/LevelMeter.h"
#include "Orvello/Prompting/View/OtherDeckNotice.h"
#include "Orvello/Prompting/View/PrompterStatus.h"
#include "Orvello/Prompting/View/ShareWarning.h"
#include "Orvello/Prompting/View/SlideStatus.h"

#include <QObject>
#include <QQuickView>

namespace Orvello {

class DeckController;
class LibraryStore;
class LiveDeckImport;
class PresentationMonitor;
class ScrollEngine;
class SettingsStore;
class TimeSource;
class VoiceActivityEngine;

/// The content of the prompter panel: a window with the prompter's view over the services that it
/// shows. What kind of window it is, is the native panel's business.
class PrompterWindow final : public QObject {
    Q_OBJECT

public:
    /// All of them must outlive the window.
    struct Services {
        ScrollEngine& engine;
        SettingsStore& settings;
        VoiceActivityEngine& voice;
        const PresentationMonitor& presentation;
        DeckController& deck;
        LibraryStore& library;
        LiveDeckImport& openDecks;
        TimeSource& time;
        bool forceCapturable;
    };

    explicit PrompterWindow(const Services& services);
    ~PrompterWindow() override;

    QWindow& window() { return m_view; }

    /// Begins to scroll at the line with that place of the active script's body.
    void startAt(qsizetype position);

    /// Whether the card says that Stealth Mode cannot hide it here.
    void setVisibleInRecordings(bool isVisible);

private:
    void connectText(const Services& services);

    DeckController& m_deck;
    PromptLines m_lines;
    PrompterStatus m_status;
    ReadingClock m_clock;
    LevelMeter m_levelMeter;
    SlideStatus m_slideStatus;
    OtherDeckNotice m_otherDeckNotice;
    ShareWarning m_shareWarning;
    QQuickView m_view;
};

} // namespace Orvello
