#include "Orvello/Adapters/macOS/Early/SharingType.h"

#import <Foundation/Foundation.h>

namespace Orvello {

bool isSharingTypeIgnored()
{
    constexpr NSInteger firstSystem = 15;
    return NSProcessInfo.processInfo.operatingSystemVersion.majorVersion >= firstSystem;
}

} // namespace Orvello
