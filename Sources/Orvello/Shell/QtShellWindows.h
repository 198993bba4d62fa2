#pragma once

#include "Orvello/Shell/ShellWindows.h"

namespace Orvello {

class LibraryStore;
class OpenPanel;
class SettingsStore;
class UpdateController;
class VoiceActivityEngine;
class Workspace;

/// The program's windows, over the services that they show.
class QtShellWindows final : public ShellWindows {
public:
    /// All of them must outlive the windows.
    struct Services {
        SettingsStore& settings;
        LibraryStore& library;
        VoiceActivityEngine& voice;
        UpdateController& updates;
        Workspace& workspace;
        OpenPanel& openPanel;
    };

    explicit QtShellWindows(const Services& services);
    ~QtShellWindows() override;

    std::unique_ptr<ShellWindow> makeLibrary() override;
    std::unique_ptr<ShellWindow> makeSettings() override;
    std::unique_ptr<ShellWindow> makeOnboarding(std::function<void()> onFinish) override;

private:
    const Services m_services;
};

} // namespace Orvello
