// The updater over a recording Sparkle and GNUstep's Foundation, whose key-value observing is real.

#include "Orvello/Adapters/macOS/Desktop/MacUpdater.h"
#include "Orvello/Adapters/macOS/Desktop/SparkleDelegate.h"
#include "Orvello/Adapters/macOS/Desktop/SparkleUpdater.h"
#include "Tests/MacOS/GNUstep/GNUstepTest.h"
#include "Tests/Support/LogCapture.h"

#include <gmock/gmock.h>

#include <memory>
#include <string>
#include <vector>

#pragma clang diagnostic ignored "-Wincomplete-implementation"
#pragma clang diagnostic ignored "-Wobjc-property-implementation"

namespace {

struct Recorded {
    std::vector<std::string> calls;
    SPUUpdater* updater = nil;
    id<SPUUpdaterDelegate> delegate = nil;
    std::string raising; ///< The call that raises an exception.
    NSString* publicKey = nil;
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
        [NSException raise:NSInternalInconsistencyException format:@"Sparkle is not well"];
}

} // namespace

extern "C" {
__kindof NSApplication* NSApp = nil;
}

@implementation NSResponder
@end
@implementation NSApplication
- (void)reportException:(NSException*)exception
{
    record(std::string("reported ") + [[exception reason] UTF8String]);
}
@end

@interface RecordedUpdater : SPUUpdater {
    BOOL automaticallyChecksForUpdates;
    BOOL canCheckForUpdates;
}
- (void)setCanCheckForUpdates:(BOOL)can;
@end

@implementation SPUUpdater
@end

@implementation RecordedUpdater
- (BOOL)automaticallyChecksForUpdates
{
    return automaticallyChecksForUpdates;
}
- (void)setAutomaticallyChecksForUpdates:(BOOL)yes
{
    automaticallyChecksForUpdates = yes;
    record(yes ? "automatically" : "when asked");
}
- (BOOL)canCheckForUpdates
{
    return canCheckForUpdates;
}
- (void)setCanCheckForUpdates:(BOOL)can
{
    canCheckForUpdates = can;
}
- (NSDate*)lastUpdateCheckDate
{
    return canCheckForUpdates ? [NSDate dateWithTimeIntervalSinceReferenceDate:1234] : nil;
}
- (void)addObserver:(NSObject*)observer
         forKeyPath:(NSString*)keyPath
            options:(NSKeyValueObservingOptions)options
            context:(void*)context
{
    record(std::string("observe ") + [keyPath UTF8String]);
    [super addObserver:observer forKeyPath:keyPath options:options context:context];
}
- (void)removeObserver:(NSObject*)observer forKeyPath:(NSString*)keyPath
{
    record(std::string("forget ") + [keyPath UTF8String]);
    [super removeObserver:observer forKeyPath:keyPath];
}
@end

@implementation SPUStandardUpdaterController
- (instancetype)initWithStartingUpdater:(BOOL)start
                        updaterDelegate:(id<SPUUpdaterDelegate>)delegate
                     userDriverDelegate:(id<SPUStandardUserDriverDelegate>)userDriverDelegate
{
    recorded().delegate = delegate;
    record(start ? "made and started" : "made");
    return [super init];
}
- (SPUUpdater*)updater
{
    return recorded().updater;
}
- (void)startUpdater
{
    record("start");
    // Sparkle asks at once where the feed is.
    NSString* const feed = [recorded().delegate feedURLStringForUpdater:recorded().updater];
    record(std::string("feed ") + (feed ? [feed UTF8String] : "of the bundle"));
}
- (void)checkForUpdates:(id)sender
{
    record("check");
}
@end

@implementation SPUUserUpdateState
@end

@implementation SUAppcastItem
- (NSString*)versionString
{
    return @"210";
}
- (NSString*)displayVersionString
{
    return @"2.1";
}
@end

@implementation NSBundle (WithKey)
- (id)objectForInfoDictionaryKey:(NSString*)key
{
    if ([key isEqualToString:@"SUPublicEDKey"])
        return recorded().publicKey;
    return [key isEqualToString:@"SUFeedURL"] ? @"https://example.org/feed.xml" : nil;
}
@end

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

std::string described(const UpdateItem& item)
{
    return item.version.toStdString() + ' ' + item.displayVersion.toStdString();
}

std::string described(const UpdateError& error)
{
    return std::to_string(error.code) + ' ' + error.description.toStdString();
}

/// Notes what it hears among the calls.
class NotingListener final : public UpdateListener {
public:
    std::optional<QString> feedAddress() const override { return feed; }
    bool mayAskPermission() const override { return mayAsk; }
    void updateFound(const UpdateItem& item) override { record("found " + described(item)); }
    void noUpdateFound(const UpdateError& error) override { record("none " + described(error)); }
    void userChose(UpdateChoice choice, const UpdateItem& item) override
    {
        record("chose " + std::to_string(static_cast<int>(choice)) + ' ' + described(item));
    }
    void installing(const UpdateItem& item) override { record("installs " + described(item)); }
    void downloadFailed(const UpdateItem& item, const UpdateError& error) override
    {
        record("not fetched " + described(item) + ": " + described(error));
    }
    void checkFailed(const UpdateError& error) override { record("failed " + described(error)); }
    void checkScheduled(double seconds) override { record("in " + std::to_string(seconds)); }

    std::optional<QString> feed;
    bool mayAsk = true;
};

class SparkleTest : public GNUstepTest {
protected:
    SparkleTest()
    {
        recorded() = {};
        NSApp = [[[NSApplication alloc] init] autorelease];
        recorded().updater = [[RecordedUpdater alloc] init];
    }
    ~SparkleTest() override
    {
        updater.reset();
        [recorded().updater release];
    }

    void makeUpdater()
    {
        updater = std::make_unique<SparkleUpdater>();
        recorded().calls.clear();
    }

    static std::vector<std::string>& calls() { return recorded().calls; }
    static RecordedUpdater* native() { return (RecordedUpdater*)recorded().updater; }

    NotingListener listener;
    std::unique_ptr<SparkleUpdater> updater;
};

TEST_F(SparkleTest, asksAtTheStartAndNotBefore)
{
    updater = std::make_unique<SparkleUpdater>();
    EXPECT_THAT(calls(), ElementsAre("made"));

    listener.feed = u"https://example.org/other.xml"_s;
    updater->start(listener);
    EXPECT_THAT(calls(), ElementsAre("made", "start", "feed https://example.org/other.xml"));

    updater->check();
    EXPECT_EQ(calls().back(), "check");
}

TEST_F(SparkleTest, leavesTheFeedToTheBundleWhereNoOtherIsAskedFor)
{
    makeUpdater();
    updater->start(listener);

    EXPECT_THAT(calls(), ElementsAre("start", "feed of the bundle"));
    EXPECT_EQ(updater->builtInFeed(), u"https://example.org/feed.xml");
}

TEST_F(SparkleTest, tellsTheListenerEachStep)
{
    makeUpdater();
    updater->start(listener);
    calls().clear();
    SPUUpdater* const native = recorded().updater;
    const id<SPUUpdaterDelegate> delegate = recorded().delegate;
    SUAppcastItem* const item = [[[SUAppcastItem alloc] init] autorelease];
    NSError* const error =
        [NSError errorWithDomain:@"SUSparkleErrorDomain"
                            code:1001
                        userInfo:[NSDictionary dictionaryWithObject:@"Up to date."
                                                             forKey:NSLocalizedDescriptionKey]];

    [delegate updater:native didFindValidUpdate:item];
    [delegate updaterDidNotFindUpdate:native error:error];
    [delegate updater:native
        userDidMakeChoice:SPUUserUpdateChoiceInstall
                forUpdate:item
                    state:[[[SPUUserUpdateState alloc] init] autorelease]];
    [delegate updater:native willInstallUpdate:item];
    [delegate updater:native failedToDownloadUpdate:item error:error];
    [delegate updater:native didAbortWithError:error];
    [delegate updater:native willScheduleUpdateCheckAfterDelay:60];
    EXPECT_THAT(calls(),
        ElementsAre("found 210 2.1", "none 1001 Up to date.", "chose 1 210 2.1", "installs 210 2.1",
            "not fetched 210 2.1: 1001 Up to date.", "failed 1001 Up to date.", "in 60.000000"));

    EXPECT_TRUE([delegate updaterShouldPromptForPermissionToCheckForUpdates:native]);
    listener.mayAsk = false;
    EXPECT_FALSE([delegate updaterShouldPromptForPermissionToCheckForUpdates:native]);
}

TEST_F(SparkleTest, tellsWhateverTurnsTheChecksOnOrOff)
{
    makeUpdater();
    int schedule = 0;
    int checks = 0;
    updater->schedule().observe([&] { ++schedule; });
    updater->observeChecks([&] { ++checks; });

    updater->schedule().setOn(true);
    EXPECT_TRUE(updater->schedule().isOn());
    EXPECT_EQ(schedule, 1);
    native().automaticallyChecksForUpdates = NO; // In a window of Sparkle's.
    EXPECT_FALSE(updater->schedule().isOn());
    EXPECT_EQ(schedule, 2);
    EXPECT_EQ(checks, 0);

    EXPECT_FALSE(updater->lastCheck());
    [native() setCanCheckForUpdates:YES];
    EXPECT_EQ(checks, 1);
    EXPECT_TRUE(updater->canCheck());
    EXPECT_EQ(updater->lastCheck(), Date { 1234 });
}

TEST_F(SparkleTest, forgetsWhatItObservedAndTheListenerInTheEnd)
{
    makeUpdater();
    updater->start(listener);
    int told = 0;
    updater->schedule().observe([&] { ++told; });
    calls().clear();

    updater.reset();
    EXPECT_THAT(calls(), ElementsAre("forget automaticallyChecksForUpdates"));

    [native() setAutomaticallyChecksForUpdates:YES];
    EXPECT_EQ(told, 0);
    [recorded().delegate updater:native() willScheduleUpdateCheckAfterDelay:60];
    EXPECT_EQ(calls().back(), "automatically") << "nobody hears of the schedule";
}

TEST_F(SparkleTest, reportsWhatSparkleRaisesAndGoesOn)
{
    recorded().raising = "start";
    makeUpdater();
    updater->start(listener);
    EXPECT_THAT(calls(), ElementsAre("start", "reported Sparkle is not well"));

    recorded().raising = "check";
    updater->check();
    EXPECT_EQ(calls().back(), "reported Sparkle is not well");
}

TEST_F(SparkleTest, observesTheOtherPropertyWhereOneCannotBe)
{
    makeUpdater();
    recorded().raising = "observe automaticallyChecksForUpdates";
    int checks = 0;
    updater->schedule().observe([] { ADD_FAILURE(); });
    updater->observeChecks([&] { ++checks; });
    EXPECT_THAT(calls(),
        ElementsAre("observe automaticallyChecksForUpdates", "reported Sparkle is not well",
            "observe canCheckForUpdates"));

    [native() setCanCheckForUpdates:YES];
    EXPECT_EQ(checks, 1);
    calls().clear();
    updater.reset();
    EXPECT_THAT(calls(), ElementsAre("forget canCheckForUpdates"))
        << "the other was never observed";
}

TEST_F(SparkleTest, endsEvenWhereSparkleDoesNotLetGo)
{
    makeUpdater();
    updater->schedule().observe([] {});
    updater->observeChecks([] {});
    recorded().raising = "forget automaticallyChecksForUpdates";
    calls().clear();

    updater.reset();

    EXPECT_THAT(calls(),
        ElementsAre("forget automaticallyChecksForUpdates", "reported Sparkle is not well",
            "forget canCheckForUpdates"));
    recorded().raising.clear();
    [native() removeObserver:(NSObject*)recorded().delegate
                  forKeyPath:@"automaticallyChecksForUpdates"];
}

TEST_F(SparkleTest, isAbsentWhereItCannotBeMade)
{
    recorded().publicKey = @"a key";
    recorded().raising = "made";
    Testing::LogCapture log;

    const std::unique_ptr<Updater> made = makeMacUpdater();
    made->check();

    EXPECT_THAT(calls(), ElementsAre("made", "reported Sparkle is not well"));
    EXPECT_THAT(log.lines(), Contains(HasSubstr("UPDATES unavailable: Sparkle could not be made")));
}

TEST_F(SparkleTest, startsInNoBuildWithoutAKeyForItWouldAlertTheUser)
{
    Testing::LogCapture log;
    const std::unique_ptr<Updater> made = makeMacUpdater();
    made->check();
    EXPECT_THAT(calls(), IsEmpty());
    EXPECT_THAT(
        log.lines(), Contains(HasSubstr("UPDATES unavailable: this build has no SUPublicEDKey")));

    recorded().publicKey = @"a key";
    makeMacUpdater()->check();
    EXPECT_THAT(calls(), ElementsAre("made", "check"));
}

} // namespace
} // namespace Orvello
