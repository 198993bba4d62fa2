#include "Tests/Gallery/Scenes.h"

#include "Orvello/Platform/Desktop/AssignedKeys.h"
#include "Orvello/Settings/Store/SettingsStore.h"
#include "Orvello/Shell/Windows/OnboardingWindowController.h"
#include "Tests/Support/FactsOf.h"
#include "Tests/Support/FakeHotKeys.h"
#include "Tests/Support/FakeUserDefaults.h"
#include "Tests/Support/FakeWindowChrome.h"
#include "Tests/Support/FakeWorkspace.h"
#include "Tests/Support/VoiceServices.h"

namespace Orvello::Gallery {

using namespace Qt::StringLiterals;

namespace {

enum class Zoom { Absent, Installed };

/// The welcome tour, turned to one of its pages.
class OnboardingStage final : public Stage {
public:
    OnboardingStage(int page, Zoom zoom, const Facts& facts)
    {
        if (!facts.isMac)
            keys.modifiersLabel = u"Alt+Super+"_s;
        if (zoom == Zoom::Installed)
            workspace.installed.append(u"us.zoom.xos"_s);
        qputenv("ORVELLO_ONBOARDING_PAGE", QByteArray::number(page)); // Turning takes its time.
        controller.emplace(OnboardingWindowController::Services { settings, workspace, chrome, keys,
                               voice.voice, facts },
            [] {});
        qunsetenv("ORVELLO_ONBOARDING_PAGE");
        controller->view().setFlags(Qt::FramelessWindowHint);
    }

    QQuickWindow& window() override { return controller->view(); }

    Testing::FakeUserDefaults defaults;
    SettingsStore settings { defaults };
    Testing::FakeWorkspace workspace;
    Testing::FakeWindowChrome chrome;
    Testing::FakeHotKeys keys;
    Testing::VoiceServices voice { settings };
    std::optional<OnboardingWindowController> controller;
};

Scene tour(const QString& name, int page, Zoom zoom = Zoom::Absent, double scale = 1,
    const Facts& facts = Testing::factsOfALinuxDesktop())
{
    return { u"Welcome tour: "_s + name,
        [=] { return std::make_unique<OnboardingStage>(page, zoom, facts); }, Wallpaper::None,
        scale };
}

Scene tourOnAMac(const QString& name, int page, Zoom zoom = Zoom::Absent)
{
    return tour(name + u", on a Mac"_s, page, zoom, 1, Testing::factsOfAMac());
}

Scene tourWhereCapturesMayShowIt(const QString& name, int page, Zoom zoom = Zoom::Absent)
{
    Facts facts = Testing::factsOfAMac();
    facts.capturesMayShowHidden = true;
    return tour(name + u", where captures may show the prompter"_s, page, zoom, 1, facts);
}

} // namespace

Scenes onboardingScenes()
{
    return {
        tour(u"welcome"_s, 0),
        tour(u"privacy"_s, 1),
        tour(u"privacy, with Zoom"_s, 1, Zoom::Installed),
        tour(u"setup"_s, 2),
        tourOnAMac(u"welcome"_s, 0),
        tourOnAMac(u"privacy"_s, 1),
        tourOnAMac(u"privacy, with Zoom"_s, 1, Zoom::Installed),
        tourOnAMac(u"setup"_s, 2),
        tourWhereCapturesMayShowIt(u"welcome"_s, 0),
        tourWhereCapturesMayShowIt(u"privacy, with Zoom"_s, 1, Zoom::Installed),
        tour(u"welcome, 2x"_s, 0, Zoom::Absent, 2),
        tour(u"privacy, with Zoom, 2x"_s, 1, Zoom::Installed, 2),
        tour(u"setup, 2x"_s, 2, Zoom::Absent, 2),
    };
}

} // namespace Orvello::Gallery
