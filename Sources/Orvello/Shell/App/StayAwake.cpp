#include "Orvello/Shell/App/StayAwake.h"

#include "Orvello/Foundation/Observe.h"
#include "Orvello/Presentations/Slideshow/PresentationMonitor.h"
#include "Orvello/Presentations/Slideshow/SlideSyncService.h"
#include "Orvello/Prompting/Engine/ScrollEngine.h"
#include "Orvello/Voice/VoiceActivityEngine.h"

#include <utility>

namespace Orvello {

StayAwake::StayAwake(const Services& services, QObject* parent)
    : QObject(parent)
    , m_services(services)
{
    // Before the need is asked for, which a pause that begins belongs to.
    for (const auto signal : { &ScrollEngine::isRunningChanged, &ScrollEngine::countdownChanged })
        connect(&m_services.engine, signal, this, &StayAwake::noticePause);
    observeCombined(
        *this, [this] { return need(); },
        [this](Wakefulness::Need now) { m_services.wakefulness.hold(now); },
        changeOf(m_services.engine, &ScrollEngine::isRunningChanged),
        changeOf(m_services.engine, &ScrollEngine::countdownChanged),
        changeOf(*this, &StayAwake::patienceEnded),
        changeOf(m_services.slides, &SlideSyncService::stateChanged),
        changeOf(m_services.presentation, &PresentationMonitor::isPresentingChanged),
        changeOf(m_services.voice, &VoiceActivityEngine::isListeningChanged));
}

bool StayAwake::isScrolling() const
{
    return m_services.engine.isRunning() || m_services.engine.isCountingDown();
}

void StayAwake::noticePause()
{
    const bool wasScrolling = std::exchange(m_wasScrolling, isScrolling());
    if (m_wasScrolling)
        m_pause.reset();
    else if (wasScrolling)
        m_pause = m_services.time.callAfter(patience, [this] {
            m_pause.reset();
            Q_EMIT patienceEnded();
        });
}

Wakefulness::Need StayAwake::need() const
{
    if (isScrolling() || m_pause || m_services.slides.state() == SlideSyncService::State::Live)
        return Wakefulness::Need::Display;
    return m_services.voice.isListening() || m_services.presentation.isPresenting()
        ? Wakefulness::Need::Timers
        : Wakefulness::Need::None;
}

} // namespace Orvello
