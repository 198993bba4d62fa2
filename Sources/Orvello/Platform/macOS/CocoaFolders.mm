#include "Orvello/Platform/macOS/CocoaFolders.h"

#include "Orvello/Platform/macOS/CocoaText.h"

namespace Orvello {

QString CocoaFolders::applicationSupport() const
{
    NSArray<NSString*>* const folders
        = NSSearchPathForDirectoriesInDomains(NSApplicationSupportDirectory, NSUserDomainMask, YES);
    return qString(folders.firstObject);
}

} // namespace Orvello
