#include "Orvello/Adapters/macOS/Early/MacInstance.h"

#include <functional>
#include <utility>

#import <AppKit/AppKit.h>

/// Hears that the user started the application once more: the system then sends the one that runs
/// an Apple event, which Qt would take for an activation.
@interface ReopenListener : NSObject {
@private // Here, because the runtime that tests it elsewhere must know its size.
    std::function<void()> _reopened;
}
- (instancetype)initWithAction:(std::function<void()>)reopened;
- (void)stop;
@end

namespace {

constexpr AEEventClass coreEvents = 'aevt';
constexpr AEEventID reopenEvent = 'rapp';

} // namespace

@implementation ReopenListener

- (instancetype)initWithAction:(std::function<void()>)reopened
{
    self = [super init];
    if (!self)
        return nil;
    _reopened = std::move(reopened);
    // No earlier: AppKit has installed its own handlers by then, and this one replaces one of them.
    [NSNotificationCenter.defaultCenter addObserver:self
                                           selector:@selector(applicationWillFinishLaunching:)
                                               name:NSApplicationWillFinishLaunchingNotification
                                             object:nil];
    return self;
}

- (void)stop
{
    [NSNotificationCenter.defaultCenter removeObserver:self];
    [NSAppleEventManager.sharedAppleEventManager removeEventHandlerForEventClass:coreEvents
                                                                      andEventID:reopenEvent];
}

- (void)applicationWillFinishLaunching:(NSNotification*)notification
{
    (void)notification;
    [NSAppleEventManager.sharedAppleEventManager setEventHandler:self
                                                     andSelector:@selector(reopen:withReplyEvent:)
                                                   forEventClass:coreEvents
                                                      andEventID:reopenEvent];
}

- (void)reopen:(NSAppleEventDescriptor*)event withReplyEvent:(NSAppleEventDescriptor*)reply
{
    (void)event;
    (void)reply;
    _reopened();
}

@end

namespace Orvello {

using namespace Qt::StringLiterals;

MacInstance::MacInstance(const QString& folder)
    : m_socket(folder)
{
}

MacInstance::~MacInstance() { [m_reopenListener stop]; }

void MacInstance::listen(Handlers handlers)
{
    m_openedUrls.emplace(u"orvello"_s); // The scheme of the bundle's Info.plist.
    QObject::connect(&*m_openedUrls, &OpenedUrls::opened, &*m_openedUrls, handlers.opened);
    m_reopenListener = [[ReopenListener alloc]
        initWithAction:[again = handlers.startedAgain] { again({}, [](const QStringList&) {}); }];
    m_socket.listen(std::move(handlers));
}

} // namespace Orvello
