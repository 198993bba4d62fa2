#include "Orvello/Adapters/macOS/Desktop/LogOut.h"

#include <QCoreApplication>

#import <AppKit/AppKit.h>

/// Qt puts a delegate of its own in front of this one, and asks it what this one answers.
@interface QuitDelegate : NSObject <NSApplicationDelegate>
@end

namespace {

constexpr AEKeyword quitReason = 'why?';
constexpr OSType reallyLogOut = 'rlgo';
constexpr OSType restart = 'rest';
constexpr OSType shutDown = 'shut';

bool isSessionEnding()
{
    NSAppleEventDescriptor* const event
        = NSAppleEventManager.sharedAppleEventManager.currentAppleEvent;
    const OSType reason = [event attributeDescriptorForKeyword:quitReason].typeCodeValue;
    return reason == reallyLogOut || reason == restart || reason == shutDown;
}

} // namespace

@implementation QuitDelegate

- (NSApplicationTerminateReply)applicationShouldTerminate:(NSApplication*)application
{
    (void)application;
    if (isSessionEnding())
        return NSTerminateNow; // By exit(3), at which the session is closed.
    QCoreApplication::quit(); // The program returns from its own event loop.
    return NSTerminateCancel;
}

@end

namespace Orvello {

void agreeToLogOut()
{
    static QuitDelegate* const delegate = [[QuitDelegate alloc] init]; // AppKit does not hold it.
    NSApp.delegate = delegate;
}

} // namespace Orvello
