#include "Orvello/Adapters/macOS/Early/CocoaFolders.h"

#include "Orvello/Adapters/macOS/Early/CocoaText.h"

namespace Orvello {

QString CocoaFolders::applicationSupport() const
{
    NSArray<NSString*>* const folders
        = NSSearchPathForDirectoriesInDomains(NSApplicationSupportDirectory, NSUserDomainMask, YES);
    return qString(folders.firstObject);
}

} // namespace Orvello
