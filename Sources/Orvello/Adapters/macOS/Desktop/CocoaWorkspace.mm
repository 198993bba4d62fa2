#include "Orvello/Adapters/macOS/Desktop/CocoaWorkspace.h"

#include "Orvello/Adapters/macOS/Early/CocoaText.h"

#import <AppKit/AppKit.h>

namespace Orvello {

namespace {

std::optional<QString> optionalText(NSString* text)
{
    return text ? std::optional(qString(text)) : std::nullopt;
}

RunningApplication described(NSRunningApplication* application)
{
    return { optionalText(application.bundleIdentifier), optionalText(application.localizedName) };
}

} // namespace

QList<RunningApplication> CocoaWorkspace::runningApplications() const
{
    QList<RunningApplication> applications;
    for (NSRunningApplication* application in NSWorkspace.sharedWorkspace.runningApplications)
        applications.append(described(application));
    return applications;
}

std::optional<RunningApplication> CocoaWorkspace::frontmostApplication() const
{
    NSRunningApplication* const application = NSWorkspace.sharedWorkspace.frontmostApplication;
    return application ? std::optional(described(application)) : std::nullopt;
}

bool CocoaWorkspace::isInstalled(const QString& bundleIdentifier) const
{
    NSString* const identifier = nsString(bundleIdentifier);
    return [NSWorkspace.sharedWorkspace URLForApplicationWithBundleIdentifier:identifier] != nil;
}

} // namespace Orvello
