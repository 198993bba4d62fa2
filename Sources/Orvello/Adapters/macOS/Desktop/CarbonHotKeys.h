#pragma once

#include "Orvello/Platform/Desktop/HotKeys.h"

namespace Orvello {

/// The Carbon event manager's hot keys, which need no permission. Their codes and modifiers are the
/// port's own.
class CarbonHotKeys final : public HotKeys {
public:
    CarbonHotKeys() = default;
    ~CarbonHotKeys() override;
    CarbonHotKeys(const CarbonHotKeys&) = delete;
    CarbonHotKeys& operator=(const CarbonHotKeys&) = delete;

    void installHandler(Handler handler) override;
    std::unique_ptr<Reference> registerHotKey(const HotKeyRequest& request) override;
    QString label(const HotKey& key) const override;

    void pressed(HotKeyID id) const { m_handler(id); } ///< For the event handler.

private:
    Handler m_handler;
    void* m_eventHandler = nullptr; ///< An EventHandlerRef, without Carbon's names in this header.
};

} // namespace Orvello
