#pragma once

#include "Orvello/Platform/Early/Facts.h"

#include <QRectF>

#include <functional>
#include <memory>

namespace Orvello {

class Compositing;
class DeckFileImport;
class DeckFileUpdates;
class HotKeys;
class ImpressPresenter;
class LibraryStore;
class LiveDeckImport;
class Menu;
class OpenPanel;
class PresenterTable;
class ReadingPace;
class SettingsStore;
class StatusBar;
class StatusItem;
class UpdateController;
class VoiceActivityEngine;
class WindowChrome;
class Workspace;

/// The prompter as other windows see it: something that is always in front of them.
struct PanelSpace {
    std::function<QRectF()> frame = [] { return QRectF(); }; ///< Empty while it is hidden.
    std::function<void()> stepAside = [] {}; ///< Hides it.
    std::function<void()> comeBack = [] {};
};

/// One window of the program that the user opens and closes, and that keeps its content while
/// closed.
class ShellWindow {
public:
    virtual ~ShellWindow() = default;

    /// Shows the window, in front of all others and with the keyboard. Centred the first time.
    virtual void bringToFront() = 0;
};

/// Makes the windows that menus and the launch open, so that the code that decides when they open
/// needs no window system. Each call makes a new window.
class ShellWindows {
public:
    /// What the windows show and work with. All of them outlive the windows.
    struct Services {
        SettingsStore& settings;
        LibraryStore& library;
        VoiceActivityEngine& voice;
        ReadingPace& pace;
        UpdateController& updates;
        const PresenterTable& presenters;
        LiveDeckImport& openDecks;
        DeckFileImport& files;
        DeckFileUpdates& deckUpdates;
        Workspace& workspace;
        OpenPanel& openPanel;
        WindowChrome& windowChrome;
        StatusBar& statusBar;
        HotKeys& hotKeys;
        Compositing& compositing;
        Facts facts; ///< What the windows may say about this machine.
        ImpressPresenter* impress = nullptr; ///< Null in an edition that does not follow it.
        PanelSpace panel = {};
        /// Has the prompter begin at that place of the active script's body.
        std::function<void(qsizetype)> startReadingAt = [](qsizetype) {};
    };
    using Factory = std::function<std::unique_ptr<ShellWindows>(const Services&)>;

    virtual ~ShellWindows() = default;

    virtual std::unique_ptr<ShellWindow> makeLibrary() = 0;
    virtual std::unique_ptr<ShellWindow> makeSettings() = 0;

    /// The welcome tour. `onFinish` is called once, when the user has finished or closed it; it may
    /// destroy the window.
    virtual std::unique_ptr<ShellWindow> makeOnboarding(std::function<void()> onFinish) = 0;

    /// The item in the status bar that opens `menu`, which must outlive it.
    virtual std::unique_ptr<StatusItem> makeStatusItem(Menu& menu) = 0;

    /// Opens `menu`, which must outlive this, at the pointer.
    virtual void popUp(Menu& menu) = 0;
};

} // namespace Orvello
