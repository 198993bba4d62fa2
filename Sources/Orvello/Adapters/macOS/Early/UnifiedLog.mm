#include "Orvello/Adapters/macOS/Early/UnifiedLog.h"

#include "Orvello/Adapters/macOS/Early/CocoaText.h"

namespace Orvello {

void UnifiedLog::write(std::string_view message)
{
    // Threads without a run loop have no pool of their own.
    @autoreleasepool {
        const QByteArrayView bytes(message.data(), static_cast<qsizetype>(message.size()));
        NSLog(@"%@", nsString(QString::fromUtf8(bytes)));
    }
}

} // namespace Orvello
