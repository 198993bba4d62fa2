#pragma once

#include <cstdint>
#include <memory>
#include <vector>

struct xcb_connection_t;
struct xkb_context;
struct xkb_keymap;

namespace Orvello {

/// The core keyboard of an X server: where the keys are and what the modifier bits mean, as of the
/// last load().
class X11Keyboard {
public:
    /// A server's name for the place of a key, such as "AD10", is the same for every layout and
    /// every set of key codes.
    using KeyName = const char*;

    /// The connection must outlive the keyboard. Also asks the server to report keyboard changes
    /// and to repeat keys without artificial releases.
    explicit X11Keyboard(xcb_connection_t* connection);
    ~X11Keyboard();

    bool load(); ///< False, with the old state kept, when the server does not answer.
    bool isChangeEvent(std::uint8_t eventType) const; ///< After such an event, load again.

    std::uint8_t keyCode(KeyName name) const; ///< 0 for a key that the keyboard lacks.
    /// The key that types the symbol by itself, in the first of the layouts that has one; 0 for
    /// none.
    std::uint8_t keyCodeOf(const char* symbol) const;
    std::uint16_t altMask() const { return m_altMask; }
    std::uint16_t superMask() const { return m_superMask; }
    /// Every combination of the locks (Caps, Num and Scroll Lock), none included.
    const std::vector<std::uint16_t>& lockMasks() const { return m_lockMasks; }
    /// The modifiers that a key can be pressed with, locks left out.
    std::uint16_t relevantMask() const;

private:
    void subscribe();
    void readModifiers();
    bool hasSymbol(std::uint8_t keyCode, std::uint32_t symbol) const;

    xcb_connection_t* m_connection;
    std::unique_ptr<xkb_context, void (*)(xkb_context*)> m_context;
    std::unique_ptr<xkb_keymap, void (*)(xkb_keymap*)> m_keymap;
    std::int32_t m_device = -1;
    std::uint8_t m_firstEvent = 0; ///< All XKB events share one type; 0 without the extension.
    std::uint16_t m_altMask = 0;
    std::uint16_t m_superMask = 0;
    std::vector<std::uint16_t> m_lockMasks { 0 };
};

} // namespace Orvello
