#include "Orvello/Prompting/View/ShareWarning.h"

#include "Orvello/Foundation/Assign.h"
#include "Orvello/Presentations/Slideshow/PresentationMonitor.h"
#include "Orvello/Prompting/Engine/ScrollEngine.h"
#include "Orvello/Settings/Store/SettingsStore.h"

namespace Orvello {

ShareWarning::ShareWarning(const PresentationMonitor& presentation, const SettingsStore& settings,
    const ScrollEngine& engine, QObject* parent)
    : QObject(parent)
    , m_presentation(presentation)
    , m_settings(settings)
    , m_engine(engine)
    , m_isShown(isCalledFor())
{
    for (const auto signal :
        { &PresentationMonitor::inCallChanged, &PresentationMonitor::isPresentingChanged,
            &PresentationMonitor::meetingAppRunningChanged })
        connect(&presentation, signal, this, &ShareWarning::update);
    connect(&settings, &SettingsStore::stealthModeChanged, this, &ShareWarning::update);
    connect(&engine, &ScrollEngine::countdownChanged, this, &ShareWarning::update);
}

void ShareWarning::dismiss()
{
    m_isDismissed = true;
    update();
}

bool ShareWarning::isCalledFor() const
{
    const bool mayBeShared = m_presentation.inCall()
        || (m_presentation.isPresenting() && m_presentation.meetingAppRunning());
    // The digits of a countdown take the card's centre.
    return mayBeShared && m_settings.stealthMode() && !m_isDismissed && !m_engine.isCountingDown();
}

void ShareWarning::update()
{
    const bool isShown = isCalledFor();
    if (assign(m_isShown, isShown))
        Q_EMIT isShownChanged();
}

} // namespace Orvello
