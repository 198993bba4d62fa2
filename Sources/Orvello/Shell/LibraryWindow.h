#pragma once

#include "Orvello/Library/LibraryViewModel.h"
#include "Orvello/Shell/ShellWindows.h"

#include <QQuickView>

namespace Orvello {

/// The scripts window. Closing it hides it, with everything that is open in it.
class LibraryWindow final : public ShellWindow {
public:
    using Services = DeckImports::Services; ///< All of them must outlive the window.

    explicit LibraryWindow(const Services& services);
    ~LibraryWindow() override;

    void makeKeyAndOrderFront() override;

    QQuickWindow& window() { return m_view; }

private:
    void centre();

    LibraryViewModel m_library;
    QQuickView m_view;
    bool m_wasShown = false;
};

} // namespace Orvello
