#include "Orvello/Shell/QtShellWindows.h"

#include "Orvello/Shell/OnboardingWindowController.h"
#include "Orvello/Shell/QtStatusItem.h"
#include "Orvello/Shell/SettingsWindow.h"

#include <QWidget>

#include <utility>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

/// An empty window, until the window of that name is there.
class PlainWindow final : public QWidget, public ShellWindow {
public:
    explicit PlainWindow(const QString& title)
    {
        setWindowTitle(title);
        resize(480, 320);
    }

    void makeKeyAndOrderFront() override
    {
        show();
        raise();
        activateWindow();
    }
};

} // namespace

QtShellWindows::QtShellWindows(const Services& services)
    : m_services(services)
{
}

QtShellWindows::~QtShellWindows() = default;

std::unique_ptr<ShellWindow> QtShellWindows::makeLibrary()
{
    return std::make_unique<PlainWindow>(u"Scripts"_s);
}

std::unique_ptr<ShellWindow> QtShellWindows::makeSettings()
{
    return std::make_unique<SettingsWindow>(SettingsWindow::Services { m_services.settings,
        m_services.voice, m_services.updates, m_services.canExcludeFromCapture });
}

std::unique_ptr<ShellWindow> QtShellWindows::makeOnboarding(std::function<void()> onFinish)
{
    return std::make_unique<OnboardingWindowController>(
        OnboardingWindowController::Services { m_services.settings, m_services.workspace,
            m_services.windowChrome, m_services.canExcludeFromCapture },
        std::move(onFinish));
}

std::unique_ptr<StatusItem> QtShellWindows::makeStatusItem(Menu& menu)
{
    return std::make_unique<QtStatusItem>(m_services.statusBar, menu);
}

} // namespace Orvello
