#include "Orvello/Adapters/macOS/Desktop/CocoaDesktop.h"

#include "Orvello/Adapters/macOS/Early/CocoaText.h"
#include "Orvello/Adapters/macOS/Early/ExceptionShield.h"

namespace Orvello {

void CocoaDesktop::activateApplication()
{
    // Since macOS 14 a request only, which the system grants after a click in our own menu.
    shielded([] { [NSApp activateIgnoringOtherApps:YES]; });
}

bool CocoaDesktop::open(const QUrl& url)
{
    bool isOpened = false;
    shielded([&] {
        NSURL* const address = [NSURL URLWithString:nsString(QString::fromLatin1(url.toEncoded()))];
        isOpened = address && [NSWorkspace.sharedWorkspace openURL:address];
    });
    return isOpened;
}

void CocoaDesktop::reveal(const QString& path)
{
    shielded([&] {
        NSURL* const file = [NSURL fileURLWithPath:nsString(path)];
        [NSWorkspace.sharedWorkspace activateFileViewerSelectingURLs:@[ file ]];
    });
}

} // namespace Orvello
