#include "Orvello/Presentations/Slideshow/SlideSyncService.h"

#include "Orvello/Diagnostics/AppLog.h"
#include "Orvello/Foundation/Assign.h"
#include "Orvello/Presentations/Presenters/PresenterApp.h"
#include "Orvello/Presentations/Slideshow/PresentationMonitor.h"

#include <QPointer>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

constexpr double pollSeconds = 0.5;

/// The system's error number for an Apple event that the user has not authorised.
constexpr QStringView notAuthorised = u"-1743";

/// The number of a slide: a decimal integer of at least 1 between white space, and nothing else.
std::optional<qint64> slideNumber(const QString& output)
{
    bool isNumber = false;
    const qint64 number = output.toLongLong(&isNumber);
    return isNumber && number >= 1 ? std::optional(number) : std::nullopt;
}

} // namespace

SlideSyncService::SlideSyncService(const PresentationMonitor& presentation,
    const PresenterTable& presenters, TimeSource& time, QObject* parent)
    : QObject(parent)
    , m_presentation(presentation)
    , m_presenters(presenters)
    , m_time(time)
{
}

SlideSyncService::~SlideSyncService() = default;

void SlideSyncService::setActive(bool on)
{
    if (!assign(m_isActive, on))
        return;
    if (on) {
        setState(State::Manual);
        m_timer = m_time.callEvery(pollSeconds, [this] { tick(); });
    } else {
        m_timer.reset();
        m_isInFlight = false;
        setState(State::Idle);
        setLiveSlide(std::nullopt);
        setPresentedDeck(std::nullopt);
        m_app = nullptr;
    }
    AppLog::write("Orvello SYNC active=%d", on ? 1 : 0);
}

void SlideSyncService::tick()
{
    const PresenterApp* presenting = m_presentation.isPresenting()
        ? m_presenters.named(m_presentation.presentingApp())
        : nullptr;
    if (presenting)
        follow(*presenting);
    else
        standBy();
}

void SlideSyncService::follow(const PresenterApp& app)
{
    if (m_app != &app) {
        m_app = &app;
        m_isDeckDue = true;
        setPresentedDeck(std::nullopt);
        if (m_state == State::Denied)
            setState(State::Manual); // Another application gets a fresh chance.
        AppLog::write("Orvello SYNC following %@", app.logName);
    }
    if (m_state == State::Denied || m_isInFlight)
        return;
    m_isInFlight = true;
    poll(app);
}

void SlideSyncService::standBy()
{
    setLiveSlide(std::nullopt);
    setPresentedDeck(std::nullopt);
    m_app = nullptr;
    if (m_state == State::Live)
        setState(State::Manual);
}

void SlideSyncService::poll(const PresenterApp& app)
{
    app.askCurrentSlide([self = QPointer(this), &app](const ScriptResult& result) {
        if (self)
            self->complete(app, result);
    });
}

void SlideSyncService::complete(const PresenterApp& app, const ScriptResult& result)
{
    m_isInFlight = false;
    if (!m_isActive || result.status == ScriptResult::notStarted)
        return;
    const auto slide = result.status == 0 ? slideNumber(result.standardOutput) : std::nullopt;
    if (slide) {
        if (slide != m_liveSlide) {
            setLiveSlide(slide);
            m_isDeckDue = true;
            AppLog::write("Orvello SYNC slide=%d", *slide);
        }
        setState(State::Live);
        askDeck(app);
    } else if (result.standardError.contains(notAuthorised)) {
        setState(State::Denied);
        setLiveSlide(std::nullopt);
        setPresentedDeck(std::nullopt);
        AppLog::write("Orvello SYNC denied (Automation permission for %@)", app.logName);
    }
    // Any other failure is transient: the slideshow may just have ended. The next tick asks again.
}

/// A slideshow can give way to another one between two looks at the windows, so each new slide may
/// be another deck's.
void SlideSyncService::askDeck(const PresenterApp& app)
{
    if (!m_isDeckDue || !app.askPresentedDeck || m_app != &app)
        return;
    m_isDeckDue = false;
    m_isInFlight = true;
    app.askPresentedDeck([self = QPointer(this), &app](const ScriptResult& result) {
        if (!self)
            return;
        self->m_isInFlight = false;
        // What cannot be told now is asked again with the next slide.
        if (self->m_app == &app && self->m_state == State::Live && result.status == 0)
            self->setPresentedDeck(DeckOutline::parse(result.standardOutput));
    });
}

void SlideSyncService::setState(State state)
{
    if (!assign(m_state, state))
        return;
    Q_EMIT stateChanged();
}

void SlideSyncService::setLiveSlide(std::optional<qint64> slide)
{
    if (!assign(m_liveSlide, slide))
        return;
    Q_EMIT liveSlideChanged();
}

void SlideSyncService::setPresentedDeck(const std::optional<DeckOutline>& deck)
{
    if (!assign(m_presentedDeck, deck))
        return;
    Q_EMIT presentedDeckChanged();
}

} // namespace Orvello
