#include "Orvello/Adapters/macOS/Desktop/SparkleDelegate.h"

#include "Orvello/Adapters/macOS/Early/CocoaText.h"
#include "Orvello/Adapters/macOS/Early/ExceptionShield.h"

#include <utility>

namespace {

using Orvello::qString;

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

@implementation SparkleDelegate

@synthesize target = _target;

- (NSString*)feedURLStringForUpdater:(SPUUpdater*)updater
{
    (void)updater;
    const std::optional<QString> feed = self.target ? self.target->feedAddress() : std::nullopt;
    return feed ? Orvello::nsString(*feed) : nil;
}

- (BOOL)updaterShouldPromptForPermissionToCheckForUpdates:(SPUUpdater*)updater
{
    (void)updater;
    return !self.target || self.target->mayAskPermission();
}

- (void)updater:(SPUUpdater*)updater didFindValidUpdate:(SUAppcastItem*)item
{
    (void)updater;
    if (self.target)
        self.target->updateFound(described(item));
}

- (void)updaterDidNotFindUpdate:(SPUUpdater*)updater error:(NSError*)error
{
    (void)updater;
    if (self.target)
        self.target->noUpdateFound(described(error));
}

- (void)updater:(SPUUpdater*)updater
    userDidMakeChoice:(SPUUserUpdateChoice)choice
            forUpdate:(SUAppcastItem*)item
                state:(SPUUserUpdateState*)state
{
    (void)updater;
    (void)state;
    if (self.target)
        self.target->userChose(static_cast<Orvello::UpdateChoice>(choice), described(item));
}

- (void)updater:(SPUUpdater*)updater willInstallUpdate:(SUAppcastItem*)item
{
    (void)updater;
    if (self.target)
        self.target->installing(described(item));
}

- (void)updater:(SPUUpdater*)updater
    failedToDownloadUpdate:(SUAppcastItem*)item
                     error:(NSError*)error
{
    (void)updater;
    if (self.target)
        self.target->downloadFailed(described(item), described(error));
}

- (void)updater:(SPUUpdater*)updater didAbortWithError:(NSError*)error
{
    (void)updater;
    if (self.target)
        self.target->checkFailed(described(error));
}

- (void)updater:(SPUUpdater*)updater willScheduleUpdateCheckAfterDelay:(NSTimeInterval)delay
{
    (void)updater;
    if (self.target)
        self.target->checkScheduled(delay);
}

- (void)observe:(SPUUpdater*)updater
        keyPath:(NSString*)keyPath
        changed:(std::function<void()>)changed
{
    _observed = updater;
    // Taking back an observer that was never added raises an exception as well.
    Orvello::shielded([&] {
        [updater addObserver:self forKeyPath:keyPath options:0 context:nil];
        _changed.insert_or_assign(qString(keyPath), std::move(changed));
    });
}

- (void)stopObserving
{
    for (const auto& [keyPath, changed] : _changed) {
        NSString* const observed = Orvello::nsString(keyPath);
        Orvello::shielded([&] { [_observed removeObserver:self forKeyPath:observed]; });
    }
    _changed.clear();
    _observed = nil;
}

- (void)observeValueForKeyPath:(NSString*)keyPath
                      ofObject:(id)object
                        change:(NSDictionary*)change
                       context:(void*)context
{
    (void)object;
    (void)change;
    (void)context;
    if (const auto changed = _changed.find(qString(keyPath)); changed != _changed.end())
        changed->second();
}

@end
