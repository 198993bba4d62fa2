// The main menu and the status item, on GNUstep's AppKit and a private X server: an AppKit of its
// own, which runs where there is no macOS. GNUstep has no menu bar for status items, so that one is
// a recording.

#include "Orvello/Adapters/macOS/Desktop/CocoaMenu.h"
#include "Orvello/Adapters/macOS/Desktop/CocoaMenuBar.h"
#include "Orvello/Adapters/macOS/Desktop/OrvelloApplication.h"
#include "Orvello/Shell/Commands/MainMenu.h"
#include "Orvello/Shell/Commands/StatusItem.h"
#include "Tests/MacOS/GNUstep/GNUstepTest.h"
#include "Tests/MacOS/GNUstep/RecordingField.h"
#include "Tests/Support/LogCapture.h"
#include "Tests/Support/PrivateXServer.h"

#include <QGuiApplication>
#include <QIcon>
#include <QPixmap>
#include <QTest>
#include <QWindow>

#include <gmock/gmock.h>

/// Says which window has the keyboard; no window manager tells it.
@interface TestedApplication : OrvelloApplication {
    NSWindow* windowWithKeyboard;
}
@property (assign) NSWindow* windowWithKeyboard;
@end

@implementation TestedApplication
@synthesize windowWithKeyboard;

- (NSWindow*)keyWindow
{
    return self.windowWithKeyboard;
}

@end

/// A text field of AppKit's own, such as an open panel has.
@interface NativeField : NSView {
    NSMutableArray* commands;
}
@property (retain) NSMutableArray* commands;
@end

@implementation NativeField
@synthesize commands;

- (BOOL)acceptsFirstResponder
{
    return YES;
}

- (void)undo:(id)sender
{
    [self.commands addObject:@"undo"];
}

- (void)redo:(id)sender
{
    [self.commands addObject:@"redo"];
}

- (void)cut:(id)sender
{
    [self.commands addObject:@"cut"];
}

- (void)copy:(id)sender
{
    [self.commands addObject:@"copy"];
}

- (void)paste:(id)sender
{
    [self.commands addObject:@"paste"];
}

- (void)selectAll:(id)sender
{
    [self.commands addObject:@"selectAll"];
}

@end

/// The window around Qt's view. It answers undoing, as AppKit's windows do.
@interface WindowOfQt : NSWindow {
    NSResponder* view;
    int undone;
}
@property (assign) NSResponder* view;
@property (assign) int undone;
@end

@implementation WindowOfQt
@synthesize view;
@synthesize undone;

- (NSResponder*)firstResponder
{
    return self.view;
}

- (void)undo:(id)sender
{
    ++self.undone;
}

@end

@interface RecordedButton : NSButton {
    int clicks;
}
@property (readonly) int clicks;
@end

@implementation RecordedButton
@synthesize clicks;

- (void)performClick:(id)sender
{
    ++clicks;
}

@end

@interface RecordedStatusItem : NSObject {
    CGFloat length;
    NSButton* button;
    NSMenu* menu;
}
@property (assign) CGFloat length;
@property (retain) NSButton* button;
@property (retain) NSMenu* menu;
@end

@implementation RecordedStatusItem
@synthesize length;
@synthesize button;
@synthesize menu;
@end

namespace {

bool isBarOutOfReach = false; ///< Whatever is asked of it raises an exception.

void reachBar()
{
    if (isBarOutOfReach)
        [NSException raise:NSInternalInconsistencyException format:@"no window server"];
}

} // namespace

@interface RecordedStatusBar : NSObject {
    NSMutableArray* items;
}
@property (readonly) NSMutableArray* items;
@end

@implementation RecordedStatusBar
@synthesize items;

- (id)statusItemWithLength:(CGFloat)length
{
    reachBar();
    if (!items)
        items = [[NSMutableArray alloc] init];
    RecordedStatusItem* const item = [[[RecordedStatusItem alloc] init] autorelease];
    item.length = length;
    item.button = [[[RecordedButton alloc] init] autorelease];
    [items addObject:item];
    return item;
}

- (void)removeStatusItem:(id)item
{
    reachBar();
    [items removeObject:item];
}

@end

namespace {

RecordedStatusBar* recordedStatusBar()
{
    static RecordedStatusBar* const bar = [[RecordedStatusBar alloc] init];
    return bar;
}

NSString* descriptionOfImage = nil;
bool isTemplateImage = false;

} // namespace

@implementation NSStatusBar (Recorded)

+ (NSStatusBar*)systemStatusBar
{
    return (NSStatusBar*)recordedStatusBar();
}

@end

@implementation NSImage (Template)

- (void)setAccessibilityDescription:(NSString*)description
{
    descriptionOfImage = [description copy];
}

- (NSString*)accessibilityDescription
{
    return descriptionOfImage;
}

- (void)setTemplate:(BOOL)isTemplate
{
    isTemplateImage = isTemplate;
}

@end

@implementation NSApplication (ActivationPolicy)

- (BOOL)setActivationPolicy:(NSInteger)activationPolicy
{
    return activationPolicy == NSApplicationActivationPolicyAccessory;
}

@end

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class WindowWithField : public QWindow {
public:
    QObject* focusObject() const override { return &field; }

    mutable Testing::RecordingField field;
};

/// The application object and the display, which a process can have one of.
class MenusTest : public GNUstepTest {
protected:
    static void SetUpTestSuite()
    {
        GNUstepTest::SetUpTestSuite();
        static const Testing::PrivateXServer display;
        ASSERT_TRUE(display.isRunning());
        [TestedApplication sharedApplication];
    }

    static TestedApplication* application() { return (TestedApplication*)NSApp; }

    static QString text(NSString* string) { return qString(string); }
};

/// Title, action and key equivalent of each line.
QStringList linesOf(NSMenu* menu)
{
    QStringList lines;
    for (NSMenuItem* line in [menu itemArray]) {
        if ([line isSeparatorItem]) {
            lines.append(u"-"_s);
            continue;
        }
        NSString* const action = [line action] ? NSStringFromSelector([line action]) : @"";
        lines.append(
            QStringList { qString([line title]), qString(action), qString([line keyEquivalent]) }
                .join(u' '));
    }
    return lines;
}

class MainMenuTest : public MenusTest {
protected:
    MainMenuTest() { bar.setMainMenu(makeMainMenu(&sendToFocusObject)); }
    ~MainMenuTest() override { application().windowWithKeyboard = nil; }

    static NSMenu* editMenu() { return [[[NSApp mainMenu] itemAtIndex:0] submenu]; }

    static void chooseEachLine()
    {
        for (NSInteger index = 0; index < [editMenu() numberOfItems]; ++index)
            [editMenu() performActionForItemAtIndex:index];
    }

    CocoaMenuBar bar;
};

const QStringList allCommands { u"undo"_s, u"redo"_s, u"cut"_s, u"copy"_s, u"paste"_s,
    u"selectAll"_s };

TEST_F(MainMenuTest, holdsTheEditMenuAlone)
{
    EXPECT_THAT(linesOf([NSApp mainMenu]), ElementsAre(u"Edit submenuAction: "_s));
    EXPECT_EQ(text([editMenu() title]), u"Edit");
    EXPECT_THAT(linesOf(editMenu()),
        ElementsAre(u"Undo undo: z"_s, u"Redo redo: Z"_s, u"-"_s, u"Cut cut: x"_s,
            u"Copy copy: c"_s, u"Paste paste: v"_s, u"Select All selectAll: a"_s));
}

TEST_F(MainMenuTest, leavesItsCommandsToTheFirstResponder)
{
    for (NSMenuItem* line in [editMenu() itemArray])
        EXPECT_EQ([line target], nil) << text([line title]).toStdString();
}

TEST_F(MainMenuTest, reachesAFieldOfAppKit)
{
    NSWindow* const window = [[NSWindow alloc] initWithContentRect:NSMakeRect(0, 0, 100, 100)
                                                         styleMask:NSBorderlessWindowMask
                                                           backing:NSBackingStoreBuffered
                                                             defer:YES];
    NativeField* const field = [[[NativeField alloc] init] autorelease];
    field.commands = [NSMutableArray array];
    [[window contentView] addSubview:field];
    ASSERT_TRUE([window makeFirstResponder:field]);
    application().windowWithKeyboard = window;

    chooseEachLine();

    EXPECT_EQ(text([field.commands componentsJoinedByString:@" "]), allCommands.join(u' '));
}

TEST_F(MainMenuTest, reachesAFieldOfQt)
{
    WindowWithField qtWindow;
    qtWindow.show();
    qtWindow.requestActivate();
    ASSERT_TRUE(QTest::qWaitFor([&] { return QGuiApplication::focusWindow() == &qtWindow; }));
    WindowOfQt* const window = [[WindowOfQt alloc] init];
    window.view = (NSResponder*)reinterpret_cast<void*>(qtWindow.winId());
    application().windowWithKeyboard = window;

    chooseEachLine();

    EXPECT_EQ(qtWindow.field.commands, allCommands);
    EXPECT_EQ(window.undone, 0) << "the window has no part in it";
}

NSEvent* commandKey(NSString* letter, bool withShift)
{
    const NSUInteger shift = withShift ? NSShiftKeyMask : 0;
    return [NSEvent keyEventWithType:NSKeyDown
                            location:NSZeroPoint
                       modifierFlags:NSCommandKeyMask | shift
                           timestamp:0
                        windowNumber:0
                             context:nil
                          characters:letter
         charactersIgnoringModifiers:letter
                           isARepeat:NO
                             keyCode:0];
}

TEST_F(MainMenuTest, answersItsKeys)
{
    WindowWithField qtWindow;
    qtWindow.show();
    qtWindow.requestActivate();
    ASSERT_TRUE(QTest::qWaitFor([&] { return QGuiApplication::focusWindow() == &qtWindow; }));
    WindowOfQt* const window = [[WindowOfQt alloc] init];
    window.view = (NSResponder*)reinterpret_cast<void*>(qtWindow.winId());
    application().windowWithKeyboard = window;

    EXPECT_TRUE([[NSApp mainMenu] performKeyEquivalent:commandKey(@"z", false)]);
    EXPECT_TRUE([[NSApp mainMenu] performKeyEquivalent:commandKey(@"Z", true)]);
    EXPECT_TRUE([[NSApp mainMenu] performKeyEquivalent:commandKey(@"a", false)]);
    EXPECT_FALSE([[NSApp mainMenu] performKeyEquivalent:commandKey(@"q", false)]);

    EXPECT_EQ(qtWindow.field.commands, (QStringList { u"undo"_s, u"redo"_s, u"selectAll"_s }));
}

TEST_F(MainMenuTest, forgetsAQtFieldWhenAnotherWindowHasTheKeyboard)
{
    WindowWithField qtWindow;
    qtWindow.show();
    qtWindow.requestActivate();
    ASSERT_TRUE(QTest::qWaitFor([&] { return QGuiApplication::focusWindow() == &qtWindow; }));

    chooseEachLine();

    EXPECT_THAT(qtWindow.field.commands, IsEmpty());
}

TEST_F(MainMenuTest, goesWithItsBar)
{
    {
        CocoaMenuBar other;
        other.setMainMenu(makeMainMenu(&sendToFocusObject));
    }

    EXPECT_EQ([NSApp mainMenu], nil);
}

class ChangingMenu : public Menu {
public:
    ChangingMenu()
    {
        line = &addItem(u"Start"_s, [this] { chosen.append(u"line"_s); });
        toggle = &addSwitch(u"Switch"_s, [this] { chosen.append(u"switch"_s); });
        addSeparator();
        Menu& help = addSubmenu(u"Help"_s);
        help.addItem(u"Advice"_s, [this] { chosen.append(u"advice"_s); });
        help.addItem(u"Version"_s, {});
        addItem(u"Quit"_s, [this] { chosen.append(u"quit"_s); }).keyEquivalent = u"q"_s;
    }

    void needsUpdate() override
    {
        line->title = isRunning ? u"Pause"_s : u"Start"_s;
        toggle->isChecked = isRunning;
    }

    bool isRunning = false;

    MenuItem* line = nullptr;
    MenuItem* toggle = nullptr;
    QStringList chosen;
};

class CocoaMenuTest : public MenusTest {
protected:
    ~CocoaMenuTest() override { [cocoaMenu release]; }

    NSMenu* native() { return cocoaMenu.nativeMenu; }

    /// Does what AppKit does right before it opens the menu.
    void open() { [native().delegate menuNeedsUpdate:native()]; }

    ChangingMenu menu;
    CocoaMenu* cocoaMenu = [[CocoaMenu alloc] initWithMenu:menu];
};

TEST_F(CocoaMenuTest, hasTheLinesOfTheMenu)
{
    EXPECT_THAT(linesOf(native()),
        ElementsAre(u"Start run: "_s, u"Switch run: "_s, u"-"_s, u"Help submenuAction: "_s,
            u"Quit run: q"_s));
    EXPECT_EQ([[native() itemAtIndex:4] keyEquivalentModifierMask],
        static_cast<NSUInteger>(NSCommandKeyMask));
    EXPECT_EQ(text([[[native() itemAtIndex:3] submenu] title]), u"Help");
}

TEST_F(CocoaMenuTest, runsWhatIsChosen)
{
    [native() performActionForItemAtIndex:0];
    [native() performActionForItemAtIndex:1];
    NSMenu* const help = [[native() itemAtIndex:3] submenu];
    [help performActionForItemAtIndex:0];
    [native() performActionForItemAtIndex:4];

    EXPECT_THAT(menu.chosen, ElementsAre(u"line"_s, u"switch"_s, u"advice"_s, u"quit"_s));
}

TEST_F(CocoaMenuTest, offersNoLineThatOnlyTellsSomething)
{
    NSMenu* const help = [[native() itemAtIndex:3] submenu];
    [help update];

    EXPECT_TRUE([[help itemAtIndex:0] isEnabled]);
    EXPECT_FALSE([[help itemAtIndex:1] isEnabled]);
    EXPECT_FALSE([CocoaMenu runActionOf:[help itemAtIndex:1]]);
}

TEST_F(CocoaMenuTest, followsTheMenuEachTimeItOpens)
{
    EXPECT_EQ([[native() itemAtIndex:1] state], NSOffState);

    menu.isRunning = true;
    open();
    EXPECT_EQ(text([[native() itemAtIndex:0] title]), u"Pause");
    EXPECT_EQ([[native() itemAtIndex:1] state], NSOnState);

    menu.isRunning = false;
    open();
    EXPECT_EQ(text([[native() itemAtIndex:0] title]), u"Start");
    EXPECT_EQ([[native() itemAtIndex:1] state], NSOffState);
}

TEST_F(CocoaMenuTest, leavesLinesOfAppKitAlone)
{
    // AppKit adds lines of its own to a menu that is called Edit.
    NSMenuItem* const foreign = [native() addItemWithTitle:@"Emoji" action:NULL keyEquivalent:@""];

    open();

    EXPECT_EQ(text([foreign title]), u"Emoji");
    EXPECT_FALSE([CocoaMenu runActionOf:foreign]);
    EXPECT_FALSE([CocoaMenu runActionOf:@"no line at all"]);
}

TEST_F(MenusTest, putsASquareTemplateIntoTheBar)
{
    ChangingMenu menu;
    QPixmap drawn(36, 36);
    drawn.fill(Qt::black);
    CocoaMenuBar bar;
    const auto item = bar.makeStatusItem(menu, QIcon(drawn), u"Orvello"_s);

    ASSERT_EQ([recordedStatusBar().items count], 1U);
    RecordedStatusItem* const shown = [recordedStatusBar().items objectAtIndex:0];
    EXPECT_EQ(shown.length, -2) << "square";
    NSImage* const image = [shown.button image];
    EXPECT_TRUE(NSEqualSizes([image size], NSMakeSize(18, 18)));
    EXPECT_TRUE(isTemplateImage);
    EXPECT_EQ(text(descriptionOfImage), u"Orvello");
    EXPECT_EQ([[image representations] count], 2U);
    NSBitmapImageRep* const fine = [[image representations] objectAtIndex:1];
    EXPECT_EQ([fine pixelsWide], 36);
    EXPECT_TRUE(NSEqualSizes([fine size], NSMakeSize(18, 18)));
    EXPECT_THAT(linesOf(shown.menu).size(), 5);
}

TEST_F(MenusTest, opensTheMenuByAClickOnTheItemWhenTheCallerIsDone)
{
    ChangingMenu menu;
    CocoaMenuBar bar;
    const auto item = bar.makeStatusItem(menu, QIcon(QPixmap(18, 18)), u"Orvello"_s);
    RecordedStatusItem* const shown = [recordedStatusBar().items objectAtIndex:0];
    auto* const button = static_cast<RecordedButton*>(shown.button);

    item->openMenu();

    EXPECT_EQ(button.clicks, 0) << "the menu would keep the caller";
    [[NSRunLoop currentRunLoop] runUntilDate:[NSDate dateWithTimeIntervalSinceNow:0.05]];
    EXPECT_EQ(button.clicks, 1);
}

TEST_F(MenusTest, takesTheItemAway)
{
    ChangingMenu menu;
    CocoaMenuBar bar;
    bar.makeStatusItem(menu, QIcon(QPixmap(18, 18)), u"Orvello"_s).reset();

    EXPECT_EQ([recordedStatusBar().items count], 0U);
}

TEST_F(MenusTest, goesOnWithoutTheItemWhereTheBarRaisesAnException)
{
    ChangingMenu menu;
    CocoaMenuBar bar;
    const Testing::LogCapture log;
    isBarOutOfReach = true;
    auto item = bar.makeStatusItem(menu, QIcon(QPixmap(18, 18)), u"Orvello"_s);
    EXPECT_THAT(log.lines(),
        ElementsAre(HasSubstr("EXCEPTION NSInternalInconsistencyException: no window server")));

    item->openMenu();
    item.reset();
    EXPECT_EQ(log.lines().size(), 1u) << "there was nothing to take away";
    isBarOutOfReach = false;
}

TEST_F(MenusTest, goesOnWhereTheBarKeepsTheItem)
{
    ChangingMenu menu;
    CocoaMenuBar bar;
    auto item = bar.makeStatusItem(menu, QIcon(QPixmap(18, 18)), u"Orvello"_s);
    const Testing::LogCapture log;

    isBarOutOfReach = true;
    item.reset();
    isBarOutOfReach = false;

    EXPECT_THAT(log.lines(), ElementsAre(HasSubstr("no window server")));
    [recordedStatusBar().items removeAllObjects];
}

} // namespace
} // namespace Orvello
