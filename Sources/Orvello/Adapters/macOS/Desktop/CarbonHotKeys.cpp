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

std::unique_ptr<HotKeys::Reference> CarbonHotKeys::registerHotKey(const HotKeyRequest& request)
{
    EventHotKeyRef key = nullptr;
    RegisterEventHotKey(request.key.keyCode, request.key.modifiers,
        { request.id.signature, request.id.id }, GetApplicationEventTarget(), kEventHotKeyNoOptions,
        &key);
    if (!key)
        return nullptr;
    return std::make_unique<CarbonReference>(key);
}

/// The symbols in the order in which menus have them.
QString CarbonHotKeys::label(const HotKey& key) const
{
    static const std::map<std::uint32_t, QString> keys {
        { HotKey::keyH, QStringLiteral("H") },
        { HotKey::keyR, QStringLiteral("R") },
        { HotKey::keyP, QStringLiteral("P") },
        { HotKey::keyDown, QStringLiteral("↓") },
        { HotKey::keyUp, QStringLiteral("↑") },
    };
    const auto name = keys.find(key.keyCode);
    if (name == keys.end())
        return {};
    return QStringLiteral(u"%1%2%3").arg(
        (key.modifiers & HotKey::optionKey) != 0 ? QStringLiteral("⌥") : QString(),
        (key.modifiers & HotKey::commandKey) != 0 ? QStringLiteral("⌘") : QString(), name->second);
}

} // namespace Orvello
