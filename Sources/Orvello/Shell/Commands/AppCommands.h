#pragma once

#include "Orvello/Platform/Early/Facts.h"
#include "Orvello/Shell/Commands/Command.h"

#include <QUrl>

#include <functional>
#include <memory>

namespace Orvello {

class DesktopServices;
class ScrollEngine;
class SettingsStore;
class ShellWindow;
class ShellWindows;
class UpdateController;

/// What the commands do in the program.
class AppCommands final : public CommandTarget {
public:
    /// All of them must outlive the commands.
    struct Services {
        ScrollEngine& engine;
        SettingsStore& settings;
        UpdateController& updates;
        DesktopServices& desktop;
        ShellWindows& windows;
        Facts facts;
    };

    /// What the application delegate does itself.
    struct Delegate {
        std::function<void()> togglePanel;
        std::function<void()> putUnderCamera;
        std::function<bool()> isPanelVisible;
        std::function<void()> showOnboarding;
    };

    AppCommands(Services services, Delegate delegate);
    ~AppCommands() override;

    /// The program's version and build, as in "2.1 (57)".
    static QString versionText();

    void toggleScroll() override;
    void speedUp() override;
    void slowDown() override;
    void backToTop() override;
    void toggleVoice() override;
    void toggleSlideTracking() override;
    void toggleStealth() override;
    void togglePanel() override;
    void putUnderCamera() override;
    void openLibrary() override;
    void openSettings() override;
    void openTour() override;
    void checkForUpdates() override;
    void contactSupport() override;
    void revealLogs() override;
    void terminate() override;

    bool isScrolling() const override;
    bool isPanelVisible() const override;
    bool isVoiceOn() const override;
    bool isSlideTrackingOn() const override;
    bool isStealthOn() const override;
    bool hasSupportAddress() const override;

private:
    QUrl supportLetter() const;
    void show(ShellWindow& window);

    const Services m_services;
    const Delegate m_delegate;
    std::unique_ptr<ShellWindow> m_libraryWindow; ///< Null until it is first opened.
    std::unique_ptr<ShellWindow> m_settingsWindow; ///< The same.
};

} // namespace Orvello
