#include "Orvello/Adapters/macOS/Desktop/CocoaWakefulness.h"

#include <utility>

namespace Orvello {

namespace {

id<NSObject> beginActivity(NSActivityOptions options, NSString* reason)
{
    return [NSProcessInfo.processInfo beginActivityWithOptions:options reason:reason];
}

} // namespace

void CocoaWakefulness::hold(Need need)
{
    if (need == std::exchange(m_held, need))
        return;
    const id<NSObject> before = m_activity;
    m_activity = nil;
    if (need == Need::Timers)
        m_activity = beginActivity(NSActivityUserInitiatedAllowingIdleSystemSleep,
            @"Follows the presentation or the reader's voice");
    if (need == Need::Display)
        m_activity = beginActivity(NSActivityUserInitiated | NSActivityIdleDisplaySleepDisabled,
            @"Scrolls the text that the user reads");
    if (before)
        [NSProcessInfo.processInfo endActivity:before]; // Last, so that nothing ends in between.
}

} // namespace Orvello
