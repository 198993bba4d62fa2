#pragma once

#include "Orvello/Platform/Early/TimeSource.h"

#include <QObject>
#include <QString>

#include <memory>
#include <optional>

namespace Orvello {

class MicActivity;
class PresenterTable;
class WindowServer;
class Workspace;

/// Watches, once a second, for a slideshow in front of the user, for meeting applications and for
/// calls. It sees what the window server and the workspace show and never talks to the
/// presentation applications.
class PresentationMonitor final : public QObject {
    Q_OBJECT

public:
    /// What the monitor looks at. Everything must outlive it.
    struct Sources {
        const PresenterTable& presenters;
        const Workspace& workspace;
        const WindowServer& windowServer;
        MicActivity& microphone;
        TimeSource& time;
    };

    explicit PresentationMonitor(const Sources& sources, QObject* parent = nullptr);
    ~PresentationMonitor() override;

    void start(); ///< Polls at once and then every second, for good. Called once.

    /// Whether a presenter's slideshow fills a screen and a presenter is frontmost.
    bool isPresenting() const { return m_isPresenting; }
    /// The owner name of the slideshow's window.
    const std::optional<QString>& presentingApp() const { return m_presentingApp; }
    /// Whether a slideshow that was in front is still on a screen, whatever is frontmost now. Until
    /// its windows are gone there is an audience.
    bool isSlideshowOnScreen() const { return m_isSlideshowOnScreen; }
    bool meetingAppRunning() const { return m_meetingAppRunning; }
    /// Whether another process is capturing audio input.
    bool inCall() const { return m_inCall; }

Q_SIGNALS:
    void isPresentingChanged();
    void isSlideshowOnScreenChanged();
    void meetingAppRunningChanged();
    void inCallChanged();

private:
    void poll();
    void pollPresentingApp();
    void pollMeetingApps();
    void pollMicrophone();
    bool isPresenterFrontmost() const;
    std::optional<QString> slideshowOnScreen() const;

    const Sources m_sources;
    bool m_isPresenting = false;
    std::optional<QString> m_presentingApp;
    bool m_isSlideshowOnScreen = false;
    bool m_meetingAppRunning = false;
    bool m_inCall = false;
    std::unique_ptr<TimeSource::Ticket> m_timer;
};

} // namespace Orvello
