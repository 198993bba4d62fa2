#include "Orvello/Shell/Commands/StatusMenu.h"

#include "Orvello/Platform/Desktop/NativePanel.h"
#include "Orvello/Prompting/Engine/ScrollEngine.h"
#include "Orvello/Settings/Store/SettingsStore.h"

namespace Orvello {

using namespace Qt::StringLiterals;

StatusMenu::StatusMenu(const State& state, StatusMenuCommands& commands, const QString& versionText)
    : m_state(state)
    , m_scrollItem(&addItem({}, [&commands] { commands.toggleScroll(); }))
{
    addItem(u"Back to Top"_s, [&commands] { commands.backToTop(); });
    addSeparator();
    addModes(commands);
    addSeparator();
    addWindows(commands);
    addHelp(commands, versionText);
    addSeparator();
    addItem(u"Quit Orvello"_s, [&commands] { commands.terminate(); }).keyEquivalent = u"q"_s;
    needsUpdate();
}

void StatusMenu::addModes(StatusMenuCommands& commands)
{
    m_voiceItem = &addSwitch(u"Voice-Follow Scrolling"_s, [&commands] { commands.toggleVoice(); });
    m_trackItem = &addSwitch(u"Slide Tracking"_s, [&commands] { commands.toggleSlideTracking(); });
    m_stealthItem = &addSwitch(u"Stealth Mode"_s, [&commands] { commands.toggleStealth(); });
    m_visibilityItem = &addItem({}, [&commands] { commands.togglePanel(); });
}

void StatusMenu::addWindows(StatusMenuCommands& commands)
{
    addItem(u"Scripts…"_s, [&commands] { commands.openLibrary(); });
    addItem(u"Settings…"_s, [&commands] { commands.openSettings(); });
    addItem(u"Welcome Tour…"_s, [&commands] { commands.openTour(); });
    addItem(u"Check for Updates…"_s, [&commands] { commands.checkForUpdates(); });
}

void StatusMenu::addHelp(StatusMenuCommands& commands, const QString& versionText)
{
    Menu& help = addSubmenu(u"Help"_s);
    help.addItem(u"Contact Support…"_s, [&commands] { commands.contactSupport(); });
    help.addItem(u"Reveal Log Files"_s, [&commands] { commands.revealLogs(); });
    help.addSeparator();
    help.addItem(u"Orvello "_s + versionText, {});
}

void StatusMenu::needsUpdate()
{
    m_scrollItem->title
        = m_state.engine.isRunning() ? u"Pause Scrolling  (⌥⌘P)"_s : u"Start Scrolling  (⌥⌘P)"_s;
    m_voiceItem->isChecked = m_state.settings.voiceFollow();
    m_trackItem->isChecked = m_state.settings.slideSync();
    m_stealthItem->isChecked = m_state.settings.stealthMode();
    m_visibilityItem->title
        = m_state.panel.isVisible() ? u"Hide Prompter  (⌥⌘H)"_s : u"Show Prompter  (⌥⌘H)"_s;
}

} // namespace Orvello
