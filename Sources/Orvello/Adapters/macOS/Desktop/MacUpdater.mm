#include "Orvello/Adapters/macOS/Desktop/MacUpdater.h"

#include "Orvello/Adapters/macOS/Early/CocoaText.h"

#import <Foundation/Foundation.h>

namespace Orvello {

std::optional<QString> feedOfBundle()
{
    const id feed = [NSBundle.mainBundle objectForInfoDictionaryKey:@"SUFeedURL"];
    if (![feed isKindOfClass:[NSString class]])
        return std::nullopt;
    return qString(feed);
}

} // namespace Orvello
