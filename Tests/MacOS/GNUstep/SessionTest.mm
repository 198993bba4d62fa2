// What the program hears from the user's session over recordings of it: starts again, the end of
// the session, and the list of windows.

#include "Orvello/Adapters/macOS/Desktop/LogOut.h"
#include "Orvello/Adapters/macOS/Desktop/QuartzWindowServer.h"
#include "Orvello/Adapters/macOS/Early/MacInstance.h"
#include "Tests/MacOS/GNUstep/GNUstepTest.h"
#include "Tests/MacOS/StandIns/CallRecord.h"

#include <QCoreApplication>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>
#include <QTimer>

#include <gmock/gmock.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

#import <CoreGraphics/CoreGraphics.h>

#pragma clang diagnostic ignored "-Wincomplete-implementation"
#pragma clang diagnostic ignored "-Wobjc-property-implementation"

namespace {

using Orvello::Testing::fourCharacters;

struct Recorded {
    std::vector<std::string> calls;
    id<NSApplicationDelegate> delegate = nil;
    OSType quitReason = 0; ///< Of the event that is being handled; 0 when there is none.
    id reopenHandler = nil;
    SEL reopenSelector = nullptr;
    NSArray* windows = nil;
    CGWindowListOption windowOptions = 0;
};

Recorded& recorded()
{
    static Recorded instance;
    return instance;
}

std::string described(AEEventClass eventClass, AEEventID event)
{
    return fourCharacters(eventClass) + ' ' + fourCharacters(event);
}

} // namespace

extern "C" {
__kindof NSApplication* NSApp = nil;

const CFStringRef kCGWindowOwnerName = (CFStringRef) @"kCGWindowOwnerName";
const CFStringRef kCGWindowBounds = (CFStringRef) @"kCGWindowBounds";

CFArrayRef CGWindowListCopyWindowInfo(CGWindowListOption option, CGWindowID)
{
    recorded().windowOptions = option;
    return (CFArrayRef)[recorded().windows retain];
}

bool CGRectMakeWithDictionaryRepresentation(CFDictionaryRef dictionary, CGRect* rect)
{
    NSDictionary* const sides = (NSDictionary*)dictionary;
    const auto side = [sides](NSString* name) { return [[sides objectForKey:name] doubleValue]; };
    *rect = NSMakeRect(side(@"X"), side(@"Y"), side(@"Width"), side(@"Height"));
    return [sides objectForKey:@"Width"] != nil;
}
}
NSString* const NSApplicationWillFinishLaunchingNotification
    = @"NSApplicationWillFinishLaunchingNotification";

@implementation NSResponder
@end
@implementation NSApplication
- (void)setDelegate:(id<NSApplicationDelegate>)delegate
{
    recorded().delegate = delegate;
}
@end
@implementation NSScreen
+ (NSArray*)screens
{
    return [NSArray arrayWithObject:[[[NSScreen alloc] init] autorelease]];
}
- (NSRect)frame
{
    return NSMakeRect(0, 0, 1440, 900);
}
@end

@implementation NSAppleEventDescriptor (Recorded)
- (NSAppleEventDescriptor*)attributeDescriptorForKeyword:(AEKeyword)keyword
{
    recorded().calls.push_back("attribute " + fourCharacters(keyword));
    return self;
}
- (OSType)typeCodeValue
{
    return recorded().quitReason;
}
@end

@implementation NSAppleEventManager (Recorded)
+ (NSAppleEventManager*)sharedAppleEventManager
{
    static NSAppleEventManager* const shared = [[NSAppleEventManager alloc] init];
    return shared;
}
- (NSAppleEventDescriptor*)currentAppleEvent
{
    static NSAppleEventDescriptor* const event = [[NSAppleEventDescriptor alloc] init];
    return recorded().quitReason != 0 ? event : nil;
}
- (void)setEventHandler:(id)handler
            andSelector:(SEL)selector
          forEventClass:(AEEventClass)eventClass
             andEventID:(AEEventID)event
{
    recorded().calls.push_back("handles " + described(eventClass, event));
    recorded().reopenHandler = handler;
    recorded().reopenSelector = selector;
}
- (void)removeEventHandlerForEventClass:(AEEventClass)eventClass andEventID:(AEEventID)event
{
    recorded().calls.push_back("handles no " + described(eventClass, event));
}
@end

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class SessionTest : public GNUstepTest {
protected:
    SessionTest()
    {
        recorded() = {};
        NSApp = [[[NSApplication alloc] init] autorelease];
    }
};

/// What AppKit does when it is asked to quit, and whether the program's own event loop then ends.
struct Quitting {
    NSApplicationTerminateReply reply = NSTerminateCancel;
    bool endsLoop = false;
};

Quitting quit(OSType reason)
{
    recorded().quitReason = reason;
    Quitting quitting;
    QTimer::singleShot(0, [&] {
        quitting.reply = [recorded().delegate applicationShouldTerminate:NSApp];
        QTimer::singleShot(50, [] { QCoreApplication::exit(1); });
    });
    quitting.endsLoop = QCoreApplication::exec() == 0;
    return quitting;
}

TEST_F(SessionTest, letsTheSessionEnd)
{
    agreeToLogOut();

    for (const OSType reason : { 'rlgo', 'rest', 'shut' }) {
        const Quitting quitting = quit(reason);
        EXPECT_EQ(quitting.reply, NSTerminateNow) << fourCharacters(reason);
        EXPECT_FALSE(quitting.endsLoop) << "AppKit ends the process";
        EXPECT_THAT(recorded().calls, Each("attribute why?"));
    }
}

TEST_F(SessionTest, endsItsOwnLoopWhereTheProgramAloneIsToEnd)
{
    agreeToLogOut();

    for (const OSType reason : { OSType { 0 }, OSType { 'quia' } }) {
        const Quitting quitting = quit(reason);
        EXPECT_EQ(quitting.reply, NSTerminateCancel) << reason;
        EXPECT_TRUE(quitting.endsLoop) << reason;
    }
}

class InstanceTest : public SessionTest {
protected:
    void listen(MacInstance& instance)
    {
        instance.listen({ [](const QList<QUrl>&) {},
            [this](const ProgramStart& start, const RunningInstance::Answer& answer) {
                starts.append(start);
                answer({ u"too late"_s });
            } });
    }

    static void finishLaunching()
    {
        [[NSNotificationCenter defaultCenter]
            postNotificationName:NSApplicationWillFinishLaunchingNotification
                          object:nil];
    }

    static void reopen()
    {
        [recorded().reopenHandler performSelector:recorded().reopenSelector
                                       withObject:nil
                                       withObject:nil];
    }

    QTemporaryDir folder;
    QList<ProgramStart> starts;
};

TEST_F(InstanceTest, hearsOfAStartThatTheSystemHeldBackOnceAppKitHasItsOwnHandlers)
{
    MacInstance instance(folder.path());
    listen(instance);
    EXPECT_THAT(recorded().calls, IsEmpty());

    finishLaunching();
    ASSERT_THAT(recorded().calls, ElementsAre("handles aevt rapp"));
    reopen();

    EXPECT_THAT(starts, ElementsAre(ProgramStart()));
}

TEST_F(InstanceTest, takesItsHandlerBackInTheEnd)
{
    {
        MacInstance instance(folder.path());
        listen(instance);
        finishLaunching();
    }
    EXPECT_THAT(recorded().calls, ElementsAre("handles aevt rapp", "handles no aevt rapp"));

    finishLaunching();
    EXPECT_EQ(recorded().calls.size(), 2u);
}

/// As with `open -n`, the copy on the disk image, and the program inside the bundle.
TEST_F(InstanceTest, hearsOfAProcessThatTheSystemTakesForAnotherProgram)
{
    MacInstance instance(folder.path());
    ASSERT_EQ(instance.claim({}).claim, RunningInstance::Claim::Granted);
    listen(instance);
    const ProgramStart start { { u"--voice"_s }, u"/Volumes/Orvello"_s, {} };

    std::optional<RunningInstance::Outcome> outcome;
    const std::unique_ptr<QThread> second(QThread::create([&] {
        MacInstance copy(folder.path());
        outcome = copy.claim(start);
    }));
    second->start();
    ASSERT_TRUE(QTest::qWaitFor([&] { return second->isFinished(); }, 60'000));

    EXPECT_EQ(outcome->claim, RunningInstance::Claim::HandedOver);
    EXPECT_THAT(outcome->messages, ElementsAre(u"too late"_s));
    EXPECT_THAT(starts, ElementsAre(start));
}

NSDictionary* windowOf(id owner, id bounds)
{
    NSMutableDictionary* const window = [NSMutableDictionary dictionary];
    if (owner)
        [window setObject:owner forKey:@"kCGWindowOwnerName"];
    if (bounds)
        [window setObject:bounds forKey:@"kCGWindowBounds"];
    return window;
}

TEST_F(SessionTest, readsOwnersAndBoundsOfTheWindowsFromFrontToBack)
{
    NSDictionary* const bounds = [@"{X = 10; Y = 20; Width = 300; Height = 200;}" propertyList];
    recorded().windows = [NSArray arrayWithObjects:windowOf(@"Keynote", bounds),
                                  windowOf(nil, [NSDictionary dictionary]),
                                  windowOf([NSNumber numberWithInt:1], @"no rectangle"), nil];

    const auto windows = QuartzWindowServer().windowsOnScreen();

    EXPECT_EQ(recorded().windowOptions, 17u) << "on the screen, without the desktop's own";
    ASSERT_TRUE(windows);
    ASSERT_EQ(windows->size(), 3);
    EXPECT_EQ(windows->at(0).ownerName, u"Keynote");
    EXPECT_EQ(windows->at(0).bounds, QRectF(10, 20, 300, 200));
    for (const int strange : { 1, 2 }) {
        EXPECT_EQ(windows->at(strange).ownerName, QString());
        EXPECT_EQ(windows->at(strange).bounds, std::nullopt);
    }
}

TEST_F(SessionTest, doesNotTakeAServerThatSaysNothingForAnEmptyScreen)
{
    EXPECT_EQ(QuartzWindowServer().windowsOnScreen().has_value(), false);

    recorded().windows = [NSArray array];
    ASSERT_TRUE(QuartzWindowServer().windowsOnScreen());
    EXPECT_THAT(*QuartzWindowServer().windowsOnScreen(), testing::SizeIs(0));
    EXPECT_THAT(QuartzWindowServer().screenSizes(), ElementsAre(QSizeF(1440, 900)));
}

} // namespace
} // namespace Orvello
