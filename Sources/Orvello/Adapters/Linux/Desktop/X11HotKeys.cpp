#include "Orvello/Adapters/Linux/Desktop/X11HotKeys.h"

#include "Orvello/Adapters/Linux/Desktop/HotKeyNames.h"
#include "Orvello/Adapters/Linux/Desktop/X11Keyboard.h"
#include "Orvello/Adapters/Linux/Desktop/Xcb.h"
#include "Orvello/Diagnostics/AppLog.h"

#include <QSocketNotifier>

#include <algorithm>
#include <utility>
#include <xcb/xcb.h>

namespace Orvello {

namespace {

constexpr std::uint8_t sentEventBit = 0x80; // Set in the type of events that a client sent.

} // namespace

enum class X11HotKeys::Holding { Own, NotOnKeyboard, OfAnotherProgram };

/// One key with its modifiers, and what is grabbed for it now in the server's own terms.
struct X11HotKeys::Grab final : Reference {
    Grab(X11HotKeys& service, const HotKeyName& keyName, const HotKeyRequest& request)
        : keys(service)
        , purpose(request.purpose ? request.purpose->name : QString())
        , name(keyName)
        , modifiers(request.key.modifiers)
        , id(request.id)
    {
    }
    ~Grab() override { keys.forget(*this); }

    std::string label() const { return hotKeyLabel(name, modifiers); }

    X11HotKeys& keys;
    const QString purpose; ///< Its name; empty for none.
    const HotKeyName& name;
    const std::uint32_t modifiers;
    const HotKeyID id;
    Holding holding = Holding::Own; ///< As of the last attempt.
    std::uint8_t serverKeyCode = 0; ///< 0 while nothing is grabbed.
    std::uint16_t serverModifiers = 0;
    std::vector<std::uint16_t> lockMasks;
};

X11HotKeys::X11HotKeys(const std::string& display)
    : m_connection(xcb_connect(display.empty() ? nullptr : display.c_str(), nullptr))
{
    if (xcb_connection_has_error(m_connection))
        return;
    for (auto screen = xcb_setup_roots_iterator(xcb_get_setup(m_connection)); screen.rem > 0;
         xcb_screen_next(&screen))
        m_roots.push_back(screen.data->root);
    m_keyboard = std::make_unique<X11Keyboard>(m_connection);
    m_notifier = std::make_unique<QSocketNotifier>(
        xcb_get_file_descriptor(m_connection), QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, &X11HotKeys::readEvents);
    readEventsSoon();
}

X11HotKeys::~X11HotKeys()
{
    m_notifier.reset();
    m_keyboard.reset();
    xcb_disconnect(m_connection);
}

void X11HotKeys::installHandler(Handler handler) { m_handler = std::move(handler); }

std::unique_ptr<HotKeys::Reference> X11HotKeys::registerHotKey(const HotKeyRequest& request)
{
    const HotKeyName* const name = hotKeyName(request.key.keyCode);
    if (!name || !m_keyboard)
        return nullptr;
    auto grabbed = std::make_unique<Grab>(*this, *name, request);
    acquire(*grabbed);
    tell(*grabbed);
    if (grabbed->holding == Holding::OfAnotherProgram)
        return nullptr;
    m_grabs.push_back(grabbed.get());
    return grabbed;
}

QString X11HotKeys::label(const HotKey& key) const { return hotKeyText(key); }

/// Tries to get the key, and logs it when losing it is news.
void X11HotKeys::acquire(Grab& grab)
{
    const std::uint8_t ofLetter = m_keyboard->keyCodeOf(grab.name.symbol);
    grab.serverKeyCode = ofLetter != 0 ? ofLetter : m_keyboard->keyCode(grab.name.place);
    grab.serverModifiers = static_cast<std::uint16_t>(
        (grab.modifiers & HotKey::optionKey ? m_keyboard->altMask() : 0)
        | (grab.modifiers & HotKey::commandKey ? m_keyboard->superMask() : 0));
    grab.lockMasks = m_keyboard->lockMasks();
    Holding holding = Holding::NotOnKeyboard;
    if (isOnKeyboard(grab))
        holding = grabKey(grab) ? Holding::Own : Holding::OfAnotherProgram;
    if (holding != Holding::Own)
        grab.serverKeyCode = 0;

    if (std::exchange(grab.holding, holding) == holding)
        return;
    if (holding == Holding::NotOnKeyboard)
        AppLog::write("HOTKEY %@ is not available on this keyboard", grab.label());
    else if (holding == Holding::OfAnotherProgram)
        AppLog::write("HOTKEY %@ belongs to another program", grab.label());
}

/// Lets the windows say whether the key works.
void X11HotKeys::tell(const Grab& grab)
{
    if (grab.purpose.isEmpty())
        return;
    auto troubles = assignedKeys().troubles();
    troubles.remove(grab.purpose);
    if (grab.holding == Holding::NotOnKeyboard)
        troubles.insert(grab.purpose, AssignedKeys::Trouble::Absent);
    else if (grab.holding == Holding::OfAnotherProgram)
        troubles.insert(grab.purpose, AssignedKeys::Trouble::Taken);
    assignedKeys().setTroubles(troubles);
}

/// A key code of 0 would grab every key, and a keyboard without Alt or Super the plain one.
bool X11HotKeys::isOnKeyboard(const Grab& grab) const
{
    return grab.serverKeyCode != 0
        && (!(grab.modifiers & HotKey::optionKey) || m_keyboard->altMask() != 0)
        && (!(grab.modifiers & HotKey::commandKey) || m_keyboard->superMask() != 0);
}

/// Grabs the key with every combination of the locks, or not at all.
bool X11HotKeys::grabKey(const Grab& grab)
{
    std::vector<xcb_void_cookie_t> requests;
    for (const std::uint32_t root : m_roots) {
        for (const std::uint16_t locks : grab.lockMasks)
            requests.push_back(xcb_grab_key_checked(m_connection, 0, root,
                static_cast<std::uint16_t>(grab.serverModifiers | locks), grab.serverKeyCode,
                XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC));
    }
    bool isOwn = true;
    for (const xcb_void_cookie_t request : requests) {
        const auto error = Xcb::owned(xcb_request_check(m_connection, request));
        isOwn = isOwn && !error;
    }
    if (!isOwn)
        release(grab);
    // What arrived while waiting for the replies is in the connection's own queue, where the
    // notifier does not see it.
    readEventsSoon();
    return isOwn;
}

void X11HotKeys::release(const Grab& grab)
{
    if (grab.serverKeyCode == 0)
        return;
    for (const std::uint32_t root : m_roots) {
        for (const std::uint16_t locks : grab.lockMasks)
            xcb_ungrab_key(m_connection, grab.serverKeyCode, root,
                static_cast<std::uint16_t>(grab.serverModifiers | locks));
    }
    xcb_flush(m_connection);
}

void X11HotKeys::forget(const Grab& grab)
{
    if (std::erase(m_grabs, &grab) > 0)
        release(grab);
}

void X11HotKeys::readEventsSoon()
{
    QMetaObject::invokeMethod(this, &X11HotKeys::readEvents, Qt::QueuedConnection);
}

void X11HotKeys::readEvents()
{
    bool isKeyboardChanged = false;
    while (const auto event = Xcb::owned(xcb_poll_for_event(m_connection))) {
        const auto type = static_cast<std::uint8_t>(event->response_type & ~sentEventBit);
        if (type == XCB_KEY_PRESS) {
            const auto& key = reinterpret_cast<const xcb_key_press_event_t&>(*event);
            pressed(key.detail, key.state);
        } else if (type == XCB_KEY_RELEASE) {
            m_heldKeys.erase(reinterpret_cast<const xcb_key_release_event_t&>(*event).detail);
        } else if (m_keyboard->isChangeEvent(type)) {
            isKeyboardChanged = true;
        }
    }
    if (isKeyboardChanged)
        keyboardChanged();
    if (xcb_connection_has_error(m_connection))
        m_notifier->setEnabled(false); // The display is gone, and the keyboard with it.
}

void X11HotKeys::pressed(std::uint8_t keyCode, std::uint16_t state)
{
    if (!m_heldKeys.insert(keyCode).second)
        return; // Auto-repeat.
    const auto modifiers = static_cast<std::uint16_t>(state & m_keyboard->relevantMask());
    const auto grab = std::ranges::find_if(m_grabs, [&](const Grab* candidate) {
        return candidate->serverKeyCode == keyCode && candidate->serverModifiers == modifiers;
    });
    if (grab != m_grabs.end() && m_handler)
        m_handler((*grab)->id);
}

void X11HotKeys::keyboardChanged()
{
    for (const Grab* const grab : m_grabs)
        release(*grab);
    m_keyboard->load();
    for (Grab* const grab : m_grabs) {
        acquire(*grab);
        tell(*grab);
    }
}

} // namespace Orvello
