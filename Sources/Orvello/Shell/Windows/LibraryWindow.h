#pragma once

#include "Orvello/Library/Window/LibraryViewModel.h"
#include "Orvello/Shell/Commands/ShellWindows.h"

#include <QCoreApplication>
#include <QQuickView>

namespace Orvello {

/// The scripts window. Closing it hides it, with everything that is open in it.
class LibraryWindow final : public ShellWindow {
    Q_DECLARE_TR_FUNCTIONS(Orvello::LibraryWindow)

public:
    using Services = DeckImports::Services; ///< All of them must outlive the window.

    explicit LibraryWindow(
        const Services& services, PanelSpace panel = {},
        std::function<void(qsizetype)> startReadingAt = [](qsizetype) {});
    ~LibraryWindow() override;

    void bringToFront() override;

    QQuickView& view() { return m_view; }

private:
    LibraryViewModel m_library;
    const PanelSpace m_panel;
    QQuickView m_view;
};

} // namespace Orvello
