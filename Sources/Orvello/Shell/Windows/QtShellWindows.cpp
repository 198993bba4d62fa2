#include "Orvello/Shell/Windows/QtShellWindows.h"

#include "Orvello/Shell/Windows/LibraryWindow.h"
#include "Orvello/Shell/Windows/OnboardingWindowController.h"
#include "Orvello/Shell/Windows/QtStatusItem.h"
#include "Orvello/Shell/Windows/SettingsWindow.h"

#include <utility>

#include <QCursor>

namespace Orvello {

QtShellWindows::QtShellWindows(const Services& services)
    : m_services(services)
{
}

QtShellWindows::~QtShellWindows() = default;

std::unique_ptr<ShellWindow> QtShellWindows::makeLibrary()
{
    return std::make_unique<LibraryWindow>(
        LibraryWindow::Services { m_services.library, m_services.openDecks, m_services.files,
            m_services.deckUpdates, m_services.presenters, m_services.openPanel, m_services.facts },
        m_services.panel, m_services.startReadingAt);
}

std::unique_ptr<ShellWindow> QtShellWindows::makeSettings()
{
    return std::make_unique<SettingsWindow>(
        SettingsWindow::Services { m_services.settings, m_services.voice, m_services.pace,
            m_services.updates, m_services.hotKeys, m_services.compositing, m_services.facts,
            m_services.impress },
        m_services.panel);
}

std::unique_ptr<ShellWindow> QtShellWindows::makeOnboarding(std::function<void()> onFinish)
{
    return std::make_unique<OnboardingWindowController>(
        OnboardingWindowController::Services { m_services.settings, m_services.workspace,
            m_services.windowChrome, m_services.hotKeys, m_services.voice, m_services.facts },
        std::move(onFinish), m_services.panel);
}

std::unique_ptr<StatusItem> QtShellWindows::makeStatusItem(Menu& menu)
{
    return statusItemIn(m_services.statusBar, menu);
}

void QtShellWindows::popUp(Menu& menu)
{
    m_popUp = std::make_unique<QtMenu>(menu);
    m_popUp->popup(QCursor::pos());
}

} // namespace Orvello
