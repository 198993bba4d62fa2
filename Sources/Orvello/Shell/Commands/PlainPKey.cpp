#include "Orvello/Shell/Commands/PlainPKey.h"

#include "Orvello/Diagnostics/AppLog.h"
#include "Orvello/Foundation/Observe.h"
#include "Orvello/Presentations/Slideshow/PresentationMonitor.h"
#include "Orvello/Settings/Store/SettingsStore.h"
#include "Orvello/Shell/Commands/HotKeyCenter.h"

#include <utility>

namespace Orvello {

PlainPKey::PlainPKey(const Services& services, std::function<void()> pressed)
    : m_services(services)
    , m_pressed(std::move(pressed))
{
    observe(m_services.settings, &SettingsStore::slideshowPauseKey,
        &SettingsStore::slideshowPauseKeyChanged, *this,
        [this](bool isWanted) { settingChanged(isWanted); });
    observe(m_services.presentation, &PresentationMonitor::isPresenting,
        &PresentationMonitor::isPresentingChanged, *this,
        [this](bool isPresenting) { presentingChanged(isPresenting); });
}

PlainPKey::~PlainPKey() = default;

void PlainPKey::settingChanged(bool isWanted)
{
    if (!isWanted)
        disarm();
    else if (m_services.presentation.isPresenting())
        arm();
}

void PlainPKey::presentingChanged(bool isPresenting)
{
    if (!m_services.settings.slideshowPauseKey())
        return;
    if (isPresenting)
        arm();
    else
        disarm();
}

void PlainPKey::arm()
{
    if (isArmed())
        return;
    m_plainPHotKeyID = m_services.hotKeys.registerHotKey({ .keyCode = HotKey::keyP }, m_pressed);
    AppLog::write("Orvello plain-P armed (slideshow)");
}

void PlainPKey::disarm()
{
    if (!isArmed())
        return;
    m_services.hotKeys.unregister(*m_plainPHotKeyID);
    m_plainPHotKeyID.reset();
    AppLog::write("Orvello plain-P disarmed");
}

} // namespace Orvello
