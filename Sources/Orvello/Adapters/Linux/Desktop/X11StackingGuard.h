#pragma once

#include <QObject>

#include <cstdint>
#include <memory>
#include <vector>

class QSocketNotifier;
struct xcb_connection_t;

namespace Orvello {

/// Keeps one override-redirect window just above the topmost of those that a window manager
/// manages, full-screen ones included, by watching the root window for whatever comes on top of it.
/// Windows that no manager manages (menus, tool tips, screen lockers) are left above: raising over
/// a locker would show the script on a locked screen.
class X11StackingGuard final : public QObject {
    Q_OBJECT

public:
    /// `shadow` is a window that stays just below `window`.
    X11StackingGuard(std::uint32_t window, std::uint32_t shadow);
    ~X11StackingGuard() override;

    /// Also from above the windows that stay above: a window is shown on top of all others.
    void settle();

private:
    void readEvents();
    void restacked(std::uint32_t window, bool isOverrideRedirect);
    std::vector<std::uint32_t> rootWindows() const;
    bool isShownAndManaged(std::uint32_t window) const;
    bool covers(std::uint32_t window) const;
    void placeAbove(std::uint32_t window);
    bool holdsManagedWindow(std::uint32_t window, int depth) const;
    bool isManaged(std::uint32_t window) const;
    void placeShadow();

    std::uint32_t m_window;
    std::uint32_t m_shadow;
    /// Its own, so that Qt's event selection on the root window stays as it is.
    xcb_connection_t* m_connection;
    /// WM_STATE, which a manager sets on each window that it manages.
    std::uint32_t m_managedStateAtom = 0;
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace Orvello
