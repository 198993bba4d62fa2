#include "Orvello/Adapters/macOS/Desktop/SparkleUpdater.h"

#include "Orvello/Adapters/macOS/Desktop/AbsentUpdater.h"
#include "Orvello/Adapters/macOS/Desktop/MacUpdater.h"
#include "Orvello/Adapters/macOS/Desktop/SparkleDelegate.h"
#include "Orvello/Adapters/macOS/Early/CocoaText.h"
#include "Orvello/Adapters/macOS/Early/ExceptionShield.h"

#include <utility>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

/// Nil where Sparkle refuses.
SPUStandardUpdaterController* controllerWith(SparkleDelegate* delegate)
{
    SPUStandardUpdaterController* controller = nil;
    shielded([&] {
        controller = [[SPUStandardUpdaterController alloc] initWithStartingUpdater:NO
                                                                   updaterDelegate:delegate
                                                                userDriverDelegate:nil];
    });
    return controller;
}

} // namespace

bool SparkleUpdater::isPresent() { return [SPUStandardUpdaterController class] != nil; }

SparkleUpdater::SparkleUpdater()
    : m_delegate([[SparkleDelegate alloc] init])
    , m_controller(controllerWith(m_delegate))
{
}

SparkleUpdater::~SparkleUpdater()
{
    [m_delegate stopObserving];
    m_delegate.target = nullptr;
}

void SparkleUpdater::start(UpdateListener& listener)
{
    m_delegate.target = &listener;
    shielded([&] { [m_controller startUpdater]; });
}

void SparkleUpdater::check()
{
    shielded([&] { [m_controller checkForUpdates:nil]; });
}

bool SparkleUpdater::isOn() const { return m_controller.updater.automaticallyChecksForUpdates; }

void SparkleUpdater::setOn(bool isOn)
{
    shielded([&] { m_controller.updater.automaticallyChecksForUpdates = isOn; });
}

void SparkleUpdater::observe(std::function<void()> changed)
{
    [m_delegate observe:m_controller.updater
                keyPath:@"automaticallyChecksForUpdates"
                changed:std::move(changed)];
}

bool SparkleUpdater::canCheck() const { return m_controller.updater.canCheckForUpdates; }

std::optional<Date> SparkleUpdater::lastCheck() const
{
    NSDate* const date = m_controller.updater.lastUpdateCheckDate;
    return date ? std::optional(Date { date.timeIntervalSinceReferenceDate }) : std::nullopt;
}

void SparkleUpdater::observeChecks(std::function<void()> changed)
{
    // Sparkle promises notifications for this property alone. It changes when a check begins and
    // when it ends, so whoever reads the date then has it.
    [m_delegate observe:m_controller.updater
                keyPath:@"canCheckForUpdates"
                changed:std::move(changed)];
}

std::optional<QString> SparkleUpdater::builtInFeed() const { return feedOfBundle(); }

std::unique_ptr<Updater> makeMacUpdater()
{
    if (!SparkleUpdater::isPresent())
        return std::make_unique<AbsentUpdater>(u"Sparkle.framework is not in this bundle"_s);
    // Some seconds after the start of a build without a key, Sparkle would alert the user.
    if (![NSBundle.mainBundle objectForInfoDictionaryKey:@"SUPublicEDKey"])
        return std::make_unique<AbsentUpdater>(u"this build has no SUPublicEDKey"_s);
    auto updater = std::make_unique<SparkleUpdater>();
    if (!updater->isMade())
        return std::make_unique<AbsentUpdater>(u"Sparkle could not be made"_s);
    return updater;
}

} // namespace Orvello
