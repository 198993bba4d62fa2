#pragma once

#include "Orvello/Platform/Desktop/Compositing.h"

#include <QAbstractNativeEventFilter>

#include <cstdint>

struct xcb_connection_t;

namespace Orvello {

/// On X11, a compositor is whoever owns the selection that the Extended Window Manager Hints name
/// for it. It may come, go and be replaced while programs run.
class X11Compositing final : public Compositing, private QAbstractNativeEventFilter {
public:
    X11Compositing(); ///< After the application object.

private:
    bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;
    void findOwner();

    xcb_connection_t* m_connection = nullptr; ///< Qt's own; null on another platform.
    std::uint32_t m_selection = 0;
    int m_ownerEvent = -1; ///< The type of the events that tell of a new owner.
};

} // namespace Orvello
