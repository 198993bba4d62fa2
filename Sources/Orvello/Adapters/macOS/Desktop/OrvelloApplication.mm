#include "Orvello/Adapters/macOS/Desktop/OrvelloApplication.h"

#include "Orvello/Adapters/macOS/Desktop/CocoaMenu.h"
#include "Orvello/Adapters/macOS/Early/CocoaText.h"
#include "Orvello/Diagnostics/AppLog.h"
#include "Orvello/Diagnostics/CrashGuard.h"

#include <QGuiApplication>
#include <QWindow>

namespace {

bool isViewOfQt(NSResponder* responder)
{
    const QWindow* const window = QGuiApplication::focusWindow();
    return window && responder == (__bridge NSView*)reinterpret_cast<void*>(window->winId());
}

QString stackOf(NSException* exception)
{
    return Orvello::qString([exception.callStackSymbols componentsJoinedByString:@"\n"]);
}

/// On the thread that threw, just before the process aborts.
void recordUncaughtException(NSException* exception)
{
    const auto utf8 = [](const QString& text) { return text.toStdString(); };
    Orvello::CrashGuard::recordUncaughtException(utf8(Orvello::qString(exception.name)),
        utf8(Orvello::qString(exception.reason)), utf8(stackOf(exception)));
}

} // namespace

@implementation OrvelloApplication

- (void)reportException:(NSException*)exception
{
    Orvello::AppLog::write("EXCEPTION %@: %@\n%@", Orvello::qString(exception.name),
        Orvello::qString(exception.reason), stackOf(exception));
    [super reportException:exception];
}

- (BOOL)sendAction:(SEL)action to:(id)target from:(id)sender
{
    // Whether AppKit has found a target by now or not: it can only be the wrong one.
    if (isViewOfQt(self.keyWindow.firstResponder) && [CocoaMenu runActionOf:sender])
        return YES;
    return [super sendAction:action to:target from:sender];
}

@end

namespace Orvello {

void makeApplicationObject()
{
    NSSetUncaughtExceptionHandler(&recordUncaughtException);
    // Qt would make an ordinary application of one that is started outside its bundle, and would
    // activate any at launch: the user's application must keep the keyboard.
    qputenv("QT_MAC_DISABLE_FOREGROUND_APPLICATION_TRANSFORM", "1");
    [[OrvelloApplication sharedApplication]
        setActivationPolicy:NSApplicationActivationPolicyAccessory];
}

} // namespace Orvello
