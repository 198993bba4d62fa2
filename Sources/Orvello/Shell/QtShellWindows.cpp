#include "Orvello/Shell/QtShellWindows.h"

#include "Orvello/Settings/SettingsStore.h"
#include "Orvello/Shell/LibraryWindow.h"
#include "Orvello/Shell/QtStatusItem.h"

#include <QCloseEvent>
#include <QWidget>

#include <utility>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

/// An empty window, until the window of that name is there.
class PlainWindow final : public QWidget, public ShellWindow {
public:
    explicit PlainWindow(const QString& title, std::function<void()> onClose = {})
        : m_onClose(std::move(onClose))
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

protected:
    void closeEvent(QCloseEvent* event) override
    {
        QWidget::closeEvent(event);
        if (const auto onClose = std::exchange(m_onClose, {}))
            onClose(); // May destroy this window.
    }

private:
    std::function<void()> m_onClose;
};

} // namespace

QtShellWindows::QtShellWindows(const Services& services)
    : m_services(services)
    , m_openDecks(services.library, services.workspace, services.appleScript)
{
}

QtShellWindows::~QtShellWindows() = default;

std::unique_ptr<ShellWindow> QtShellWindows::makeLibrary()
{
    return std::make_unique<LibraryWindow>(LibraryWindow::Services {
        m_services.library, m_openDecks, m_services.presenters, m_services.openPanel });
}

std::unique_ptr<ShellWindow> QtShellWindows::makeSettings()
{
    return std::make_unique<PlainWindow>(u"Orvello Settings"_s);
}

std::unique_ptr<ShellWindow> QtShellWindows::makeOnboarding(std::function<void()> onFinish)
{
    const auto finish = [&settings = m_services.settings, onFinish = std::move(onFinish)] {
        settings.setOnboardingSeenVersion(1);
        onFinish();
    };
    return std::make_unique<PlainWindow>(u"Welcome to Orvello"_s, finish);
}

std::unique_ptr<StatusItem> QtShellWindows::makeStatusItem(Menu& menu)
{
    return std::make_unique<QtStatusItem>(m_services.statusBar, menu);
}

} // namespace Orvello
