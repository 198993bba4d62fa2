#pragma once

#include "Orvello/Platform/Early/TimeSource.h"
#include "Orvello/Presentations/Presenters/AppleScriptRunner.h"

#include <QObject>

#include <memory>
#include <optional>

namespace Orvello {

class PresentationMonitor;
class PresenterTable;
struct PresenterApp;

/// Finds out which slide is on screen: while it is active it asks the presenting application twice
/// a second. At most one question is open at a time.
class SlideSyncService final : public QObject {
    Q_OBJECT

public:
    enum class State {
        Idle, ///< Slide tracking is off.
        Manual, ///< On, with no slideshow followed: the user steps by hand.
        Live, ///< Following a slideshow.
        Denied, ///< The system, or the application, refuses to be asked.
    };
    Q_ENUM(State)

    /// Everything must outlive the service.
    SlideSyncService(const PresentationMonitor& presentation, const PresenterTable& presenters,
        TimeSource& time, QObject* parent = nullptr);
    ~SlideSyncService() override;

    void setActive(bool on); ///< Switches slide tracking.

    State state() const { return m_state; }
    /// The 1-based number of the slide on screen, when known.
    const std::optional<qint64>& liveSlide() const { return m_liveSlide; }
    /// The application being followed, or null.
    const PresenterApp* app() const { return m_app; }

Q_SIGNALS:
    void stateChanged();
    void liveSlideChanged();

private:
    void tick();
    void follow(const PresenterApp& app);
    void standBy();
    void poll(const PresenterApp& app);
    void complete(const PresenterApp& app, const ScriptResult& result);
    void setState(State state);
    void setLiveSlide(std::optional<qint64> slide);

    const PresentationMonitor& m_presentation;
    const PresenterTable& m_presenters;
    TimeSource& m_time;
    State m_state = State::Idle;
    std::optional<qint64> m_liveSlide;
    const PresenterApp* m_app = nullptr;
    std::unique_ptr<TimeSource::Ticket> m_timer;
    bool m_isInFlight = false;
    bool m_isActive = false;
};

} // namespace Orvello
