#include "Orvello/Platform/macOS/SparkleDelegate.h"

#include "Orvello/Platform/macOS/CocoaText.h"

namespace {

using Orvello::qString;

NSString* const automaticChecksKey = @"automaticallyChecksForUpdates";

static_assert(static_cast<int>(Orvello::UpdateChoice::Skip) == SPUUserUpdateChoiceSkip);
static_assert(static_cast<int>(Orvello::UpdateChoice::Install) == SPUUserUpdateChoiceInstall);
static_assert(static_cast<int>(Orvello::UpdateChoice::Later) == SPUUserUpdateChoiceDismiss);

Orvello::UpdateItem described(SUAppcastItem* item)
{
    return { qString(item.versionString), qString(item.displayVersionString) };
}

Orvello::UpdateError described(NSError* error)
{
    return { qString(error.localizedDescription), static_cast<int>(error.code) };
}

} // namespace

@implementation SparkleDelegate {
    SPUUpdater* _observed;
    std::function<void()> _changed;
}

- (NSString*)feedURLStringForUpdater:(SPUUpdater*)updater
{
    (void)updater;
    const std::optional<QString> feed = self.target ? self.target->feedURLString() : std::nullopt;
    return feed ? Orvello::nsString(*feed) : nil;
}

- (void)updater:(SPUUpdater*)updater didFindValidUpdate:(SUAppcastItem*)item
{
    (void)updater;
    if (self.target)
        self.target->didFindValidUpdate(described(item));
}

- (void)updaterDidNotFindUpdate:(SPUUpdater*)updater error:(NSError*)error
{
    (void)updater;
    if (self.target)
        self.target->didNotFindUpdate(described(error));
}

- (void)updater:(SPUUpdater*)updater
    userDidMakeChoice:(SPUUserUpdateChoice)choice
            forUpdate:(SUAppcastItem*)item
                state:(SPUUserUpdateState*)state
{
    (void)updater;
    (void)state;
    if (self.target)
        self.target->userDidMakeChoice(static_cast<Orvello::UpdateChoice>(choice), described(item));
}

- (void)updater:(SPUUpdater*)updater willInstallUpdate:(SUAppcastItem*)item
{
    (void)updater;
    if (self.target)
        self.target->willInstallUpdate(described(item));
}

- (void)updater:(SPUUpdater*)updater
    failedToDownloadUpdate:(SUAppcastItem*)item
                     error:(NSError*)error
{
    (void)updater;
    if (self.target)
        self.target->failedToDownloadUpdate(described(item), described(error));
}

- (void)updater:(SPUUpdater*)updater didAbortWithError:(NSError*)error
{
    (void)updater;
    if (self.target)
        self.target->didAbortWithError(described(error));
}

- (void)updater:(SPUUpdater*)updater willScheduleUpdateCheckAfterDelay:(NSTimeInterval)delay
{
    (void)updater;
    if (self.target)
        self.target->willScheduleUpdateCheckAfterDelay(delay);
}

- (void)observe:(SPUUpdater*)updater changed:(std::function<void()>)changed
{
    [self stopObserving];
    _observed = updater;
    _changed = changed;
    [updater addObserver:self forKeyPath:automaticChecksKey options:0 context:nil];
}

- (void)stopObserving
{
    [_observed removeObserver:self forKeyPath:automaticChecksKey];
    _observed = nil;
}

- (void)observeValueForKeyPath:(NSString*)keyPath
                      ofObject:(id)object
                        change:(NSDictionary*)change
                       context:(void*)context
{
    (void)keyPath;
    (void)object;
    (void)change;
    (void)context;
    _changed();
}

@end
