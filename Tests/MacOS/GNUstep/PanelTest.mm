// The prompter's panel over a recording AppKit: what is asked of it, and in which order.

#include "Orvello/Adapters/macOS/Desktop/CocoaPanel.h"

#include "Orvello/Adapters/macOS/Desktop/CocoaView.h"
#include "Orvello/Adapters/macOS/Desktop/PrompterPanel.h"
#include "Orvello/Adapters/macOS/Early/SharingType.h"
#include "Tests/MacOS/GNUstep/GNUstepTest.h"
#include "Tests/Support/EventLoop.h"
#include "Tests/Support/FakeScreens.h"

#include <QMouseEvent>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QTest>

#include <gmock/gmock.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#import <GNUstepBase/GSObjCRuntime.h>

#pragma clang diagnostic ignored "-Wincomplete-implementation"
#pragma clang diagnostic ignored "-Wobjc-property-implementation"

namespace {

struct Recorded {
    std::vector<std::string> calls;
    NSRect frame {};
    NSView* content = nil;
    NSPoint pointer {};
    bool isVisible = false;
    bool isActive = false;
    NSEvent* event = nil;
    NSRect screen = NSMakeRect(0, 0, 1440, 900);
    std::string raising; ///< The call that raises an exception.
};

Recorded& recorded()
{
    static Recorded instance;
    return instance;
}

void record(const std::string& call)
{
    recorded().calls.push_back(call);
    if (call == recorded().raising)
        [NSException raise:NSInternalInconsistencyException format:@"AppKit is not well"];
}

/// The call's name, and its argument where that is one number.
std::string description(NSInvocation* call)
{
    std::string text = [NSStringFromSelector([call selector]) UTF8String];
    if ([[call methodSignature] numberOfArguments] != 3)
        return text;
    const char type = *[[call methodSignature] getArgumentTypeAtIndex:2];
    if (std::string_view("cCsSiIlLqQB").find(type) == std::string_view::npos)
        return text;
    long long number = 0;
    [call getArgument:&number atIndex:2];
    return text + ' ' + std::to_string(number);
}

} // namespace

extern "C" {
__kindof NSApplication* NSApp = nil;
}
NSString* const NSWindowDidResizeNotification = @"NSWindowDidResizeNotification";
NSString* const NSWindowDidEndLiveResizeNotification = @"NSWindowDidEndLiveResizeNotification";
NSString* const NSApplicationDidChangeScreenParametersNotification
    = @"NSApplicationDidChangeScreenParametersNotification";
NSString* const NSApplicationDidResignActiveNotification
    = @"NSApplicationDidResignActiveNotification";

/// Records whatever its subclasses are asked and have no answer to.
@implementation NSResponder

- (NSMethodSignature*)methodSignatureForSelector:(SEL)selector
{
    NSMethodSignature* const known = [super methodSignatureForSelector:selector];
    return known ? known : [NSMethodSignature signatureWithObjCTypes:GSTypesFromSelector(selector)];
}

- (void)forwardInvocation:(NSInvocation*)call
{
    record(description(call));
}

- (void)mouseUp:(NSEvent*)event
{
    record("mouseUp:");
}

@end

@implementation NSView

- (instancetype)initWithFrame:(NSRect)frame
{
    return [super init];
}

- (NSRect)bounds
{
    return NSMakeRect(0, 0, recorded().frame.size.width, recorded().frame.size.height);
}

- (NSWindow*)window
{
    static NSWindow* const only = [[NSWindow alloc] init];
    return only;
}

- (NSPoint)convertPoint:(NSPoint)point fromView:(NSView*)view
{
    return point;
}

@end

@implementation NSWindow

- (instancetype)initWithContentRect:(NSRect)rect
                          styleMask:(NSWindowStyleMask)style
                            backing:(NSBackingStoreType)backing
                              defer:(BOOL)flag
{
    record("made with style " + std::to_string(style) + (flag ? ", later" : ", at once"));
    recorded().frame = rect;
    return [super init];
}

- (NSRect)frame
{
    return recorded().frame;
}

- (void)setFrame:(NSRect)frame display:(BOOL)flag
{
    recorded().frame = frame;
}

- (NSView*)contentView
{
    return recorded().content;
}

- (void)setContentView:(NSView*)view
{
    recorded().content = view;
}

- (BOOL)isVisible
{
    return recorded().isVisible;
}

- (NSPoint)mouseLocationOutsideOfEventStream
{
    return recorded().pointer;
}

- (NSRect)constrainFrameRect:(NSRect)frame toScreen:(NSScreen*)screen
{
    return NSMakeRect(1, 2, 3, 4);
}

@end

@implementation NSPanel
@end

@implementation NSColor
+ (NSColor*)clearColor
{
    return nil;
}
@end

@implementation NSScreen
+ (NSArray*)screens
{
    return [NSArray arrayWithObject:[[[NSScreen alloc] init] autorelease]];
}
- (NSRect)frame
{
    return recorded().screen;
}
@end

namespace {
id trackingOwner = nil;
}

@implementation NSTrackingArea
- (instancetype)initWithRect:(NSRect)rect
                     options:(NSTrackingAreaOptions)options
                       owner:(id)owner
                    userInfo:(NSDictionary*)userInfo
{
    record("tracks with " + std::to_string(options));
    trackingOwner = owner;
    return [super init];
}
@end

@implementation NSEvent
- (NSEventType)type
{
    return NSEventTypeLeftMouseDown;
}
+ (NSEvent*)mouseEventWithType:(NSEventType)type
                      location:(NSPoint)location
                 modifierFlags:(NSEventModifierFlags)flags
                     timestamp:(NSTimeInterval)time
                  windowNumber:(NSInteger)window
                       context:(NSGraphicsContext*)context
                   eventNumber:(NSInteger)event
                    clickCount:(NSInteger)clicks
                      pressure:(float)pressure
{
    return [[[NSEvent alloc] init] autorelease];
}
- (NSPoint)locationInWindow
{
    return recorded().pointer;
}
- (NSTimeInterval)timestamp
{
    return 0;
}
- (NSEventModifierFlags)modifierFlags
{
    return 0;
}
@end

@implementation NSApplication
- (BOOL)isActive
{
    return recorded().isActive;
}
- (NSEvent*)currentEvent
{
    return recorded().event;
}
@end

namespace Orvello {

bool isSystemIgnoringSharing = false;

bool isSharingTypeIgnored() { return isSystemIgnoringSharing; }

NSView* nativeViewOf(const QWindow&)
{
    static NSView* const view = [[NSView alloc] init];
    return view;
}

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// Notes the events that the view gets.
class EventNotes final : public QObject {
public:
    explicit EventNotes(QObject& watched) { watched.installEventFilter(this); }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Enter || event->type() == QEvent::Leave)
            seen.push_back(event->type());
        return false;
    }

    std::vector<QEvent::Type> seen;
};

class PanelTest : public GNUstepTest {
protected:
    PanelTest()
    {
        recorded() = {};
        NSApp = [[[NSApplication alloc] init] autorelease];
        panel = std::make_unique<CocoaPanel>(view, screens);
    }

    static void post(NSString* name, id object = nil)
    {
        [[NSNotificationCenter defaultCenter] postNotificationName:name object:object];
    }

    /// Where among the calls; they must have been made.
    static std::ptrdiff_t placeOf(const std::string& call)
    {
        const auto& calls = recorded().calls;
        const auto place = std::ranges::find(calls, call);
        EXPECT_NE(place, calls.end()) << call;
        return place - calls.begin();
    }

    static void expectInOrder(const std::vector<std::string>& calls)
    {
        for (std::size_t i = 1; i < calls.size(); ++i)
            EXPECT_LT(placeOf(calls[i - 1]), placeOf(calls[i])) << calls[i];
    }

    Testing::FakeScreens screens;
    QQuickWindow view;
    std::unique_ptr<CocoaPanel> panel;
};

TEST_F(PanelTest, isBornNonActivatingAndGetsItsLevelAfterFloating)
{
    expectInOrder({ "made with style 136, at once", "setFloatingPanel: 1", "setLevel: 1000" });
    placeOf("setCollectionBehavior: 273");
    placeOf("setHidesOnDeactivate: 0");
    placeOf("setCanHide: 0");
    placeOf("setWorksWhenModal: 1");
    placeOf("setMovableByWindowBackground: 0");
}

TEST_F(PanelTest, putsQtsViewIntoAPlainOneAndTracksThePointerThere)
{
    EXPECT_NE(recorded().content, nativeViewOf(view));
    expectInOrder(
        { "setAutoresizingMask: 18", "addSubview:", "tracks with 643", "addTrackingArea:" });
}

TEST_F(PanelTest, showsTheViewFirst)
{
    EXPECT_FALSE(view.isVisible());
    panel->show();
    EXPECT_TRUE(view.isVisible());
    placeOf("orderFrontRegardless");

    panel->hide();
    EXPECT_FALSE(view.isVisible());
    expectInOrder({ "orderFrontRegardless", "orderOut:" });
}

TEST_F(PanelTest, isLeftOutOfEveryCaptureOnlyWhereTheSystemSaysSo)
{
    using Reach = CaptureHiding::Reach;
    EXPECT_EQ(panel->captureHiding().reach(), Reach::EveryCapture);
    isSystemIgnoringSharing = true;
    EXPECT_EQ(panel->captureHiding().reach(), Reach::SomeCaptures);
    isSystemIgnoringSharing = false;

    panel->captureHiding().setHidden(true);
    panel->captureHiding().setHidden(false);
    expectInOrder({ "setSharingType: 0", "setSharingType: 1" });
}

TEST_F(PanelTest, comesBackAtOnceWhenItsScreenGoes)
{
    screens.connected = { { 0, 0, 1440, 900 }, { 1440, 0, 1920, 1080 } };
    panel->setFrame({ 2000, 100, 720, 200 });
    EXPECT_EQ(panel->frame(), QRectF(2000, 100, 720, 200));
    post(NSApplicationDidChangeScreenParametersNotification);
    EXPECT_EQ(panel->frame(), QRectF(2000, 100, 720, 200)) << "it is still there";

    screens.connected = { { 0, 0, 1440, 900 } };
    post(NSApplicationDidChangeScreenParametersNotification);

    EXPECT_EQ(panel->frame(), QRectF(720, 100, 720, 200));
}

TEST_F(PanelTest, standsWhereItIsPutAsLongAsItCanBeGrabbed)
{
    PrompterPanel* const native = [[PrompterPanel alloc] initWithSize:NSMakeSize(720, 200)
                                                              minimum:NSMakeSize(340, 130)
                                                              maximum:NSMakeSize(1600, 900)];
    const NSRect underCamera = NSMakeRect(360, 694, 720, 200);
    EXPECT_TRUE(NSEqualRects([native constrainFrameRect:underCamera toScreen:nil], underCamera))
        << "nobody has said where it may stand";

    [native tell:PanelEvents { .placed = [](NSRect) { return NSMakeRect(0, 0, 720, 200); } }];

    EXPECT_TRUE(NSEqualRects(
        [native constrainFrameRect:underCamera toScreen:nil], NSMakeRect(0, 0, 720, 200)));
    [native release];
}

TEST_F(PanelTest, renewsTheShadowOnceForManyFrames)
{
    for (int frame = 0; frame < 5; ++frame)
        Q_EMIT view.frameSwapped();
    const auto renewals
        = [] { return std::ranges::count(recorded().calls, std::string("invalidateShadow")); };
    EXPECT_EQ(renewals(), 0);

    EXPECT_TRUE(QTest::qWaitFor([&] { return renewals() > 0; }, 5000));
    QTest::qWait(300);
    EXPECT_EQ(renewals(), 1);
}

TEST_F(PanelTest, entersAgainWhereThePointerRestsWhenTheProgramBecomesInactive)
{
    EventNotes notes(view);
    recorded().isVisible = true;
    recorded().pointer = NSMakePoint(100, 100);

    post(NSApplicationDidResignActiveNotification);
    EXPECT_THAT(notes.seen, IsEmpty()) << "Qt tells of the leaving after this";
    [[NSRunLoop currentRunLoop] runUntilDate:[NSDate dateWithTimeIntervalSinceNow:0.05]];
    EXPECT_THAT(notes.seen, ElementsAre(QEvent::Enter));

    recorded().pointer = NSMakePoint(100, 2000);
    post(NSApplicationDidResignActiveNotification);
    [[NSRunLoop currentRunLoop] runUntilDate:[NSDate dateWithTimeIntervalSinceNow:0.05]];
    EXPECT_THAT(notes.seen, ElementsAre(QEvent::Enter));
}

TEST_F(PanelTest, isDraggedByWhatTakesNoPressAndTellsTheViewOfTheRelease)
{
    recorded().event = [[[NSEvent alloc] init] autorelease];
    QMouseEvent press(QEvent::MouseButtonPress, { 10, 10 }, { 10, 10 }, { 10, 10 }, Qt::LeftButton,
        Qt::LeftButton, {});
    QCoreApplication::sendEvent(&view, &press);
    placeOf("performWindowDragWithEvent:");

    Testing::drainEvents();
    expectInOrder({ "performWindowDragWithEvent:", "mouseUp:" });
}

TEST_F(PanelTest, takesTheRestBackWhereAppKitRaisesAnException)
{
    for (const std::string call :
        { "orderOut:", "removeTrackingArea:", "removeFromSuperview", "close" }) {
        panel = std::make_unique<CocoaPanel>(view, screens);
        recorded().calls.clear();
        recorded().raising = call;

        panel.reset();

        recorded().raising.clear();
        placeOf("reportException:");
        expectInOrder({ "orderOut:", "removeTrackingArea:", "removeFromSuperview", "close" });
    }
}

TEST_F(PanelTest, takesEverythingBackInTheEnd)
{
    const QSignalSpy resized(panel.get(), &NativePanel::resized);
    recorded().calls.clear();

    panel.reset();

    EXPECT_THAT(recorded().calls,
        ElementsAre("orderOut:", "removeTrackingArea:", "removeFromSuperview", "close"));
    post(NSApplicationDidChangeScreenParametersNotification);
    post(NSApplicationDidResignActiveNotification);
    [[NSRunLoop currentRunLoop] runUntilDate:[NSDate dateWithTimeIntervalSinceNow:0.05]];
    EventNotes notes(view);
    NSEvent* const late = [[[NSEvent alloc] init] autorelease];
    [trackingOwner mouseEntered:late];
    [trackingOwner mouseMoved:late];
    [trackingOwner mouseExited:late];
    EXPECT_THAT(notes.seen, IsEmpty());
}

} // namespace
} // namespace Orvello
