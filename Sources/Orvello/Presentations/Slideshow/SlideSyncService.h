#pragma once

#include "Orvello/Platform/Early/TimeSource.h"
#include "Orvello/Presentations/Presenters/AppleScriptRunner.h"
#include "Orvello/Presentations/Slideshow/DeckOutline.h"

#include <QObject>

#include <memory>
#include <optional>

namespace Orvello {

class PresentationMonitor;
class PresenterTable;
struct PresenterApp;

/// Finds out which slide is on screen: while it is active it asks the presenting application twice
/// a second, and after each change of the slide which deck it is from. At most one question is open
/// at a time.
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
    /// The deck that is on screen, when the application tells.
    const std::optional<DeckOutline>& presentedDeck() const { return m_presentedDeck; }
    /// The application being followed, or null.
    const PresenterApp* app() const { return m_app; }

Q_SIGNALS:
    void stateChanged();
    void liveSlideChanged();
    void presentedDeckChanged();

private:
    void tick();
    void follow(const PresenterApp& app);
    void standBy();
    void poll(const PresenterApp& app);
    void complete(const PresenterApp& app, const ScriptResult& result);
    void askDeck(const PresenterApp& app);
    void setState(State state);
    void setLiveSlide(std::optional<qint64> slide);
    void setPresentedDeck(const std::optional<DeckOutline>& deck);

    const PresentationMonitor& m_presentation;
    const PresenterTable& m_presenters;
    TimeSource& m_time;
    State m_state = State::Idle;
    std::optional<qint64> m_liveSlide;
    std::optional<DeckOutline> m_presentedDeck;
    const PresenterApp* m_app = nullptr;
    std::unique_ptr<TimeSource::Ticket> m_timer;
    bool m_isInFlight = false;
    bool m_isDeckDue = false; ///< The deck on screen may be another one.
    bool m_isActive = false;
};

} // namespace Orvello
