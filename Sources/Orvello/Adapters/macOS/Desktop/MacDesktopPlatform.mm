#include "Orvello/Adapters/macOS/Desktop/CarbonHotKeys.h"
#include "Orvello/Adapters/macOS/Desktop/CocoaMenuBar.h"
#include "Orvello/Adapters/macOS/Desktop/CocoaOpenPanel.h"
#include "Orvello/Adapters/macOS/Desktop/CocoaPanel.h"
#include "Orvello/Adapters/macOS/Desktop/CocoaScreens.h"
#include "Orvello/Adapters/macOS/Desktop/CocoaWakefulness.h"
#include "Orvello/Adapters/macOS/Desktop/CocoaWindowChrome.h"
#include "Orvello/Adapters/macOS/Desktop/CocoaWorkspace.h"
#include "Orvello/Adapters/macOS/Desktop/LogOut.h"
#include "Orvello/Adapters/macOS/Desktop/MacUpdater.h"
#include "Orvello/Adapters/macOS/Desktop/OrvelloApplication.h"
#include "Orvello/Adapters/macOS/Desktop/QuartzWindowServer.h"
#include "Orvello/Adapters/macOS/Early/CocoaText.h"
#include "Orvello/Adapters/macOS/Early/ExceptionShield.h"
#include "Orvello/Platform/Desktop/Compositing.h"
#include "Orvello/Platform/Desktop/DesktopPlatform.h"
#include "Orvello/Platform/Desktop/DesktopServices.h"
#include "Orvello/Platform/Desktop/StatusBar.h"

namespace Orvello {

namespace {

class CocoaDesktop final : public DesktopServices {
public:
    void activateApplication() override
    {
        // Since macOS 14 a request only, which the system grants after a click in our own menu.
        shielded([] { [NSApp activateIgnoringOtherApps:YES]; });
    }
    bool open(const QUrl& url) override
    {
        bool isOpened = false;
        shielded([&] {
            NSURL* const address =
                [NSURL URLWithString:nsString(QString::fromLatin1(url.toEncoded()))];
            isOpened = address && [NSWorkspace.sharedWorkspace openURL:address];
        });
        return isOpened;
    }
    void reveal(const QString& path) override
    {
        shielded([&] {
            NSURL* const file = [NSURL fileURLWithPath:nsString(path)];
            [NSWorkspace.sharedWorkspace activateFileViewerSelectingURLs:@[ file ]];
        });
    }
};

/// The right side of the system's menu bar, which is never missing.
class CocoaStatusBar final : public StatusBar {
public:
    MenuBar* menuBar() override { return &m_menuBar; }
    void observe(std::function<void(bool isThere)> changed) override { changed(true); }

private:
    CocoaMenuBar m_menuBar;
};

class MacDesktopPlatform final : public DesktopPlatform {
public:
    Screens& screens() override { return m_screens; }
    Workspace& workspace() override { return m_workspace; }
    WindowServer& windowServer() override { return m_windowServer; }
    DesktopServices& desktopServices() override { return m_desktop; }
    OpenPanel& openPanel() override { return m_openPanel; }
    StatusBar& statusBar() override { return m_statusBar; }
    HotKeys& hotKeys() override { return m_hotKeys; }

    Updater& updater() override
    {
        if (!m_updater)
            m_updater = makeMacUpdater();
        return *m_updater;
    }
    WindowChrome& windowChrome() override { return m_windowChrome; }

    Wakefulness& wakefulness() override { return m_wakefulness; }
    /// The window server always composites.
    Compositing& compositing() override { return m_compositing; }

    /// Keynote and PowerPoint are the presenters here.
    HelperProcess* impressHelper() override { return nullptr; }

    /// Metal draws on every Mac that this edition runs on.
    bool hasHardwareRenderer() override { return true; }

    std::unique_ptr<NativePanel> makePanel(QWindow& view) override
    {
        return std::make_unique<CocoaPanel>(view, m_screens);
    }

private:
    CocoaScreens m_screens;
    CocoaWorkspace m_workspace;
    QuartzWindowServer m_windowServer;
    CocoaDesktop m_desktop;
    CocoaOpenPanel m_openPanel;
    CocoaStatusBar m_statusBar;
    CarbonHotKeys m_hotKeys;
    std::unique_ptr<Updater> m_updater;
    CocoaWindowChrome m_windowChrome;
    Compositing m_compositing;
    CocoaWakefulness m_wakefulness;
};

} // namespace

QString DesktopPlatform::prepare()
{
    makeApplicationObject();
    agreeToLogOut();
    return {};
}

std::unique_ptr<DesktopPlatform> DesktopPlatform::create(EarlyPlatform&)
{
    return std::make_unique<MacDesktopPlatform>();
}

} // namespace Orvello
