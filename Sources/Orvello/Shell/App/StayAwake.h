#pragma once

#include "Orvello/Platform/Desktop/Wakefulness.h"
#include "Orvello/Platform/Early/TimeSource.h"

#include <QObject>

#include <memory>

namespace Orvello {

class PresentationMonitor;
class ScrollEngine;
class SlideSyncService;
class VoiceActivityEngine;

/// Keeps the display on while somebody reads and touches nothing: while the text scrolls or is
/// about to, for a minute after that, and while the prompter follows a slideshow. Main thread.
class StayAwake final : public QObject {
    Q_OBJECT

public:
    /// How long a pause leaves the display on, in seconds.
    static constexpr double patience = 60;

    /// All must outlive it.
    struct Services {
        Wakefulness& wakefulness;
        ScrollEngine& engine;
        SlideSyncService& slides;
        PresentationMonitor& presentation;
        VoiceActivityEngine& voice;
        TimeSource& time;
    };

    explicit StayAwake(const Services& services, QObject* parent = nullptr);

Q_SIGNALS:
    void patienceEnded();

private:
    bool isScrolling() const;
    void noticePause();
    Wakefulness::Need need() const;

    Services m_services;
    bool m_wasScrolling = false;
    std::unique_ptr<TimeSource::Ticket> m_pause; ///< Until the patience with a pause ends.
};

} // namespace Orvello
