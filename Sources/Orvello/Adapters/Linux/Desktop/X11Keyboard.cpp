#include "Orvello/Adapters/Linux/Desktop/X11Keyboard.h"

#include "Orvello/Adapters/Linux/Desktop/Xcb.h"
#include "Orvello/Adapters/Linux/Desktop/XcbXkb.h"

#include <algorithm>
#include <span>
#include <xcb/xcb.h>
#include <xkbcommon/xkbcommon-x11.h>
#include <xkbcommon/xkbcommon.h>

namespace Orvello {

namespace {

constexpr int modifierCount = 8; ///< Shift, Lock, Control and Mod1 to Mod5.

/// Every union of some of the masks, the empty one first.
std::vector<std::uint16_t> combinations(std::span<const std::uint16_t> masks)
{
    std::vector<std::uint16_t> all { 0 };
    for (const std::uint16_t mask : masks) {
        const std::size_t count = all.size();
        for (std::size_t i = 0; i < count; ++i)
            all.push_back(static_cast<std::uint16_t>(all[i] | mask));
    }
    std::ranges::sort(all);
    all.erase(std::unique(all.begin(), all.end()), all.end());
    return all;
}

} // namespace

X11Keyboard::X11Keyboard(xcb_connection_t* connection)
    : m_connection(connection)
    , m_context(xkb_context_new(XKB_CONTEXT_NO_DEFAULT_INCLUDES), &xkb_context_unref)
    , m_keymap(nullptr, &xkb_keymap_unref)
{
    if (!xkb_x11_setup_xkb_extension(m_connection, XKB_X11_MIN_MAJOR_XKB_VERSION,
            XKB_X11_MIN_MINOR_XKB_VERSION, XKB_X11_SETUP_XKB_EXTENSION_NO_FLAGS, nullptr, nullptr,
            &m_firstEvent, nullptr))
        return;
    m_device = xkb_x11_get_core_keyboard_device_id(m_connection);
    subscribe();
    load();
}

X11Keyboard::~X11Keyboard() = default;

void X11Keyboard::subscribe()
{
    constexpr std::uint16_t events
        = XCB_XKB_EVENT_TYPE_NEW_KEYBOARD_NOTIFY | XCB_XKB_EVENT_TYPE_MAP_NOTIFY;
    constexpr std::uint16_t parts = XCB_XKB_MAP_PART_KEY_TYPES | XCB_XKB_MAP_PART_KEY_SYMS
        | XCB_XKB_MAP_PART_MODIFIER_MAP | XCB_XKB_MAP_PART_VIRTUAL_MODS;
    xcb_xkb_select_events(
        m_connection, XCB_XKB_ID_USE_CORE_KBD, events, 0, events, parts, parts, nullptr);
    constexpr std::uint32_t flag = XCB_XKB_PER_CLIENT_FLAG_DETECTABLE_AUTO_REPEAT;
    xcb_discard_reply(m_connection,
        xcb_xkb_per_client_flags(m_connection, XCB_XKB_ID_USE_CORE_KBD, flag, flag, 0, 0, 0)
            .sequence);
}

bool X11Keyboard::load()
{
    xkb_keymap* const keymap = m_device < 0
        ? nullptr
        : xkb_x11_keymap_new_from_device(
            m_context.get(), m_connection, m_device, XKB_KEYMAP_COMPILE_NO_FLAGS);
    if (!keymap)
        return false;
    m_keymap.reset(keymap);
    readModifiers();
    return true;
}

bool X11Keyboard::isChangeEvent(std::uint8_t eventType) const
{
    return m_firstEvent != 0 && eventType == m_firstEvent;
}

std::uint8_t X11Keyboard::keyCode(KeyName name) const
{
    const xkb_keycode_t code
        = m_keymap ? xkb_keymap_key_by_name(m_keymap.get(), name) : XKB_KEYCODE_INVALID;
    return code <= 255 ? static_cast<std::uint8_t>(code) : std::uint8_t { 0 };
}

std::uint8_t X11Keyboard::keyCodeOf(const char* symbol) const
{
    if (!m_keymap)
        return 0;
    xkb_keymap* const keymap = m_keymap.get();
    const xkb_keysym_t wanted = xkb_keysym_from_name(symbol, XKB_KEYSYM_NO_FLAGS);
    const xkb_keycode_t last = std::min<xkb_keycode_t>(xkb_keymap_max_keycode(keymap), 255);
    for (xkb_layout_index_t layout = 0; layout < xkb_keymap_num_layouts(keymap); ++layout) {
        for (xkb_keycode_t code = xkb_keymap_min_keycode(keymap); code <= last; ++code) {
            const xkb_keysym_t* symbols = nullptr;
            const bool hasLayout = layout < xkb_keymap_num_layouts_for_key(keymap, code);
            if (hasLayout
                && xkb_keymap_key_get_syms_by_level(keymap, code, layout, 0, &symbols) == 1
                && *symbols == wanted)
                return static_cast<std::uint8_t>(code);
        }
    }
    return 0;
}

std::uint16_t X11Keyboard::relevantMask() const
{
    constexpr unsigned all = 0xFF;
    return static_cast<std::uint16_t>(all & ~static_cast<unsigned>(m_lockMasks.back()));
}

void X11Keyboard::readModifiers()
{
    const auto mapping = Xcb::owned(xcb_get_modifier_mapping_reply(
        m_connection, xcb_get_modifier_mapping(m_connection), nullptr));
    if (!mapping)
        return;
    const std::span codes(xcb_get_modifier_mapping_keycodes(mapping.get()),
        static_cast<std::size_t>(mapping->keycodes_per_modifier) * modifierCount);
    const auto maskOf = [&](std::initializer_list<std::uint32_t> symbols) {
        for (std::size_t i = 0; i < codes.size(); ++i) {
            const auto isMatch = [&](std::uint32_t symbol) { return hasSymbol(codes[i], symbol); };
            if (codes[i] != 0 && std::ranges::any_of(symbols, isMatch))
                return static_cast<std::uint16_t>(1U << (i / mapping->keycodes_per_modifier));
        }
        return std::uint16_t { 0 };
    };
    m_altMask = maskOf({ XKB_KEY_Alt_L, XKB_KEY_Alt_R });
    m_superMask = maskOf({ XKB_KEY_Super_L, XKB_KEY_Super_R });
    const std::uint16_t locks[]
        = { XCB_MOD_MASK_LOCK, maskOf({ XKB_KEY_Num_Lock }), maskOf({ XKB_KEY_Scroll_Lock }) };
    m_lockMasks = combinations(locks);
}

bool X11Keyboard::hasSymbol(std::uint8_t keyCode, std::uint32_t symbol) const
{
    const xkb_layout_index_t layouts = xkb_keymap_num_layouts_for_key(m_keymap.get(), keyCode);
    for (xkb_layout_index_t layout = 0; layout < layouts; ++layout) {
        const xkb_level_index_t levels
            = xkb_keymap_num_levels_for_key(m_keymap.get(), keyCode, layout);
        for (xkb_level_index_t level = 0; level < levels; ++level) {
            const xkb_keysym_t* symbols = nullptr;
            const int count = xkb_keymap_key_get_syms_by_level(
                m_keymap.get(), keyCode, layout, level, &symbols);
            if (std::ranges::count(symbols, symbols + count, symbol) > 0)
                return true;
        }
    }
    return false;
}

} // namespace Orvello
