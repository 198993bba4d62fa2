#include "Orvello/Adapters/macOS/Desktop/CarbonHotKeys.h"

#include <map>
#include <utility>

#include <Carbon/Carbon.h>

namespace Orvello {

namespace {

/// The system calls it on the main thread, in the application's event loop.
OSStatus hotKeyPressed(EventHandlerCallRef, EventRef event, void* hotKeys)
{
    EventHotKeyID key {};
    const OSStatus status = GetEventParameter(
        event, kEventParamDirectObject, typeEventHotKeyID, nullptr, sizeof key, nullptr, &key);
    if (status == noErr)
        static_cast<const CarbonHotKeys*>(hotKeys)->pressed({ key.signature, key.id });
    return noErr;
}

class CarbonReference final : public HotKeys::Reference {
public:
    explicit CarbonReference(EventHotKeyRef key)
        : m_key(key)
    {
    }
    ~CarbonReference() override { UnregisterEventHotKey(m_key); }

private:
    EventHotKeyRef m_key;
};

} // namespace

CarbonHotKeys::~CarbonHotKeys()
{
    if (m_eventHandler)
        RemoveEventHandler(static_cast<EventHandlerRef>(m_eventHandler));
}

void CarbonHotKeys::installHandler(Handler handler)
{
    m_handler = std::move(handler);
    constexpr EventTypeSpec hotKeyPress { kEventClassKeyboard, kEventHotKeyPressed };
    EventHandlerRef reference = nullptr;
    InstallEventHandler(
        GetApplicationEventTarget(), &hotKeyPressed, 1, &hotKeyPress, this, &reference);
    m_eventHandler = reference;
}

std::unique_ptr<HotKeys::Reference> CarbonHotKeys::registerHotKey(
    std::uint32_t keyCode, std::uint32_t modifiers, HotKeyID id)
{
    EventHotKeyRef key = nullptr;
    RegisterEventHotKey(keyCode, modifiers, { id.signature, id.id }, GetApplicationEventTarget(),
        kEventHotKeyNoOptions, &key);
    if (!key)
        return nullptr;
    return std::make_unique<CarbonReference>(key);
}

/// The symbols in the order in which menus have them.
QString CarbonHotKeys::label(std::uint32_t keyCode, std::uint32_t modifiers) const
{
    static const std::map<std::uint32_t, QString> keys {
        { HotKey::keyH, QStringLiteral("H") },
        { HotKey::keyR, QStringLiteral("R") },
        { HotKey::keyP, QStringLiteral("P") },
        { HotKey::keyDown, QStringLiteral("↓") },
        { HotKey::keyUp, QStringLiteral("↑") },
    };
    const auto key = keys.find(keyCode);
    if (key == keys.end())
        return {};
    return QStringLiteral(u"%1%2%3").arg(
        (modifiers & HotKey::optionKey) != 0 ? QStringLiteral("⌥") : QString(),
        (modifiers & HotKey::commandKey) != 0 ? QStringLiteral("⌘") : QString(), key->second);
}

} // namespace Orvello
