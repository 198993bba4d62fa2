#pragma once

#include "Orvello/Settings/Window/SettingsForm.h"
#include "Orvello/Shell/Commands/ShellWindows.h"
#include "Orvello/Shell/Commands/ShortcutList.h"

#include <QCoreApplication>
#include <QQuickView>

namespace Orvello {

class AssignedKeys;
class Compositing;
class ImpressPresenter;
class SettingsStore;
class ReadingPace;
class UpdateController;
class VoiceActivityEngine;

/// The settings window. Closing it hides it.
class SettingsWindow final : public ShellWindow {
    Q_DECLARE_TR_FUNCTIONS(Orvello::SettingsWindow)

public:
    /// In points, where the screen has room for it.
    static constexpr QSize contentSize { 500, 780 };
    static constexpr QSize smallestSize { 500, 260 }; ///< The form scrolls.

    /// All of them must outlive the window.
    struct Services {
        SettingsStore& settings;
        VoiceActivityEngine& voice;
        ReadingPace& pace;
        UpdateController& updates;
        HotKeys& hotKeys;
        Compositing& compositing;
        Facts facts; ///< What the window may say about this machine.
        ImpressPresenter* impress = nullptr; ///< Null in an edition that does not follow it.
    };

    explicit SettingsWindow(const Services& services, PanelSpace panel = {});

    void bringToFront() override;

    QQuickView& view() { return m_view; }

private:
    SettingsForm m_form;
    ShortcutList m_shortcuts;
    const PanelSpace m_panel;
    QQuickView m_view;
};

} // namespace Orvello
