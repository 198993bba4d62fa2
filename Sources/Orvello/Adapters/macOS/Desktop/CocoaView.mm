#include "Orvello/Adapters/macOS/Desktop/CocoaView.h"

#include <QWindow>

namespace Orvello {

NSView* nativeViewOf(const QWindow& window)
{
    return (__bridge NSView*)reinterpret_cast<void*>(window.winId());
}

} // namespace Orvello
