#pragma once

#include "Orvello/Settings/WelcomeTour/WelcomeTour.h"
#include "Orvello/Shell/Commands/ShellWindows.h"
#include "Orvello/Shell/Commands/ShortcutList.h"

#include <QObject>
#include <QQuickView>

#include <functional>

namespace Orvello {

class AssignedKeys;
class SettingsStore;
class VoiceActivityEngine;
class WindowChrome;
class Workspace;

/// The window of the welcome tour. Every new one begins at the initial page.
class OnboardingWindowController final : public QObject, public ShellWindow {
    Q_OBJECT

public:
    static constexpr QSize contentSize { 680, 580 }; ///< In points.
    /// The tour's version, which is remembered once the user has seen it.
    static constexpr qint64 version = 1;

    /// All of them must outlive the window.
    struct Services {
        SettingsStore& settings;
        const Workspace& workspace;
        WindowChrome& chrome;
        HotKeys& hotKeys;
        VoiceActivityEngine& voice;
        Facts facts; ///< What the tour may say about this machine.
    };

    /// `onFinish` is called once, through the main event loop, whichever way the user leaves. It
    /// may destroy the window.
    OnboardingWindowController(
        const Services& services, std::function<void()> onFinish, PanelSpace panel = {});

    void bringToFront() override;

    QQuickView& view() { return m_view; }
    WelcomeTour& tour() { return m_tour; }

    bool eventFilter(QObject* watched, QEvent* event) override; ///< Sees the window close.

private:
    void finish();
    void tellFinished();

    SettingsStore& m_settings;
    std::function<void()> m_onFinish;
    bool m_finished = false;
    WelcomeTour m_tour;
    ShortcutList m_shortcuts;
    const PanelSpace m_panel;
    QQuickView m_view;
};

} // namespace Orvello
