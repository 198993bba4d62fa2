#pragma once

#include "Orvello/Platform/Desktop/HotKeys.h"

#include <QObject>

#include <cstdint>
#include <memory>
#include <set>
#include <string>
#include <vector>

class QSocketNotifier;
struct xcb_connection_t;

namespace Orvello {

class X11Keyboard;

/// Hot keys as key grabs on the root windows of an X server, whatever Caps, Num and Scroll Lock
/// are. Keys go with their letter when the layout changes, and one that the keyboard lacks works as
/// soon as the keyboard has it.
class X11HotKeys final : public QObject, public HotKeys {
    Q_OBJECT

public:
    /// On the display of that name; empty is the one of the environment. Its own connection, so
    /// that the grabs' events never pass through the toolkit.
    explicit X11HotKeys(const std::string& display = {});
    ~X11HotKeys() override;

    void installHandler(Handler handler) override;
    std::unique_ptr<Reference> registerHotKey(const HotKeyRequest& request) override;
    QString label(const HotKey& key) const override;

private:
    enum class Holding;
    struct Grab;

    void readEvents();
    void readEventsSoon();
    void pressed(std::uint8_t keyCode, std::uint16_t state);
    void keyboardChanged();
    void acquire(Grab& grab);
    void tell(const Grab& grab);
    bool isOnKeyboard(const Grab& grab) const;
    bool grabKey(const Grab& grab);
    void release(const Grab& grab);
    void forget(const Grab& grab);

    xcb_connection_t* m_connection;
    std::unique_ptr<X11Keyboard> m_keyboard;
    std::unique_ptr<QSocketNotifier> m_notifier;
    std::vector<std::uint32_t> m_roots;
    std::vector<Grab*> m_grabs;
    std::set<std::uint8_t> m_heldKeys; ///< Keys pressed and not yet released.
    Handler m_handler;
};

} // namespace Orvello
