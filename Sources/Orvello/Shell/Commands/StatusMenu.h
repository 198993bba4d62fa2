#pragma once

#include "Orvello/Shell/Commands/Menu.h"

#include <QString>

namespace Orvello {

class NativePanel;
class ScrollEngine;
class SettingsStore;

/// What the status menu's lines do.
class StatusMenuCommands {
public:
    virtual ~StatusMenuCommands() = default;

    virtual void toggleScroll() = 0;
    virtual void backToTop() = 0;
    virtual void toggleVoice() = 0;
    virtual void toggleSlideTracking() = 0;
    virtual void toggleStealth() = 0;
    virtual void togglePanel() = 0;
    virtual void openLibrary() = 0;
    virtual void openSettings() = 0;
    virtual void openTour() = 0;
    virtual void checkForUpdates() = 0;
    virtual void contactSupport() = 0;
    virtual void revealLogs() = 0;
    virtual void terminate() = 0;
};

/// The menu of the status item: every command of the program. Titles and check marks are those of
/// the last opening.
class StatusMenu final : public Menu {
public:
    /// What the titles and check marks tell of. Everything must outlive the menu.
    struct State {
        const ScrollEngine& engine;
        const SettingsStore& settings;
        const NativePanel& panel;
    };

    /// `commands` must outlive the menu.
    StatusMenu(const State& state, StatusMenuCommands& commands, const QString& versionText);

    void needsUpdate() override;

private:
    void addModes(StatusMenuCommands& commands);
    void addWindows(StatusMenuCommands& commands);
    void addHelp(StatusMenuCommands& commands, const QString& versionText);

    const State m_state;
    MenuItem* m_scrollItem;
    MenuItem* m_voiceItem;
    MenuItem* m_trackItem;
    MenuItem* m_stealthItem;
    MenuItem* m_visibilityItem;
};

} // namespace Orvello
