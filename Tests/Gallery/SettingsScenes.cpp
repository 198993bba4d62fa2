#include "Tests/Gallery/Scenes.h"

#include "Orvello/Platform/Desktop/AssignedKeys.h"
#include "Orvello/Platform/Desktop/Compositing.h"
#include "Orvello/Prompting/Engine/ReadingPace.h"
#include "Orvello/Prompting/Engine/ScrollEngine.h"
#include "Orvello/Settings/Store/SettingsStore.h"
#include "Orvello/Shell/Updates/UpdateController.h"
#include "Orvello/Shell/Windows/SettingsWindow.h"
#include "Orvello/Voice/VoiceActivityEngine.h"
#include "Tests/Gallery/Palettes.h"
#include "Tests/Support/EventLoop.h"
#include "Tests/Support/FactsOf.h"
#include "Tests/Support/FakeHotKeys.h"
#include "Tests/Support/FakeMicActivity.h"
#include "Tests/Support/FakeMicrophonePermission.h"
#include "Tests/Support/FakeMicrophones.h"
#include "Tests/Support/FakeRawMicrophone.h"
#include "Tests/Support/FakeUpdater.h"
#include "Tests/Support/FakeUserDefaults.h"
#include "Tests/Support/FakeVoiceProcessing.h"
#include "Tests/Support/FakeWorkspace.h"
#include "Tests/Support/ManualTimeSource.h"

#include <QQuickItem>
#include <QTest>

#include <optional>
#include <utility>
#include <vector>

namespace Orvello::Gallery {

using namespace Qt::StringLiterals;

namespace {

/// How much of the settings a scene shows: the window, all of it, or one section by its title.
enum class Extent { Window, All, Section };

/// The settings over their real services, on fake ports.
class SettingsStage final : public Stage {
public:
    using Play = std::function<void(SettingsStage&)>;

    SettingsStage(Look look, Extent extent, Play play, QString section, const Facts& facts)
        : m_palette(look)
        , m_extent(extent)
        , m_section(std::move(section))
        , m_play(std::move(play))
    {
        if (!facts.isMac)
            keys.modifiersLabel = u"Alt+Super+"_s;
        updater.feed = u"https://example.com/feed"_s;
        updates.start();
        updater.setChecks(true, Date::fromUnixSeconds(1.79e9));
        engine.setViewportHeight(200);
        engine.setContentHeight(1700);
        pace.setText(u"word "_s.repeated(300));
        settingsWindow.emplace(
            SettingsWindow::Services { settings, voice, pace, updates, keys, compositing, facts });
        settingsWindow->view().setFlags(Qt::FramelessWindowHint);
    }

    QQuickWindow& window() override { return settingsWindow->view(); }
    void play() override
    {
        m_play(*this);
        QTest::qWait(100); // Lines that have come lie in their places with the next frame.
        if (m_extent == Extent::All)
            showAll();
        else if (m_extent == Extent::Section)
            showSection();
        Testing::drainEvents();
    }

    /// Hears a voice on whichever path captures.
    void hearVoice()
    {
        for (int block = 0; block < 20; ++block) {
            const std::vector<float> samples(480, 0.02F);
            voiceProcessing.hear(samples);
            microphone.hear(samples);
            time.advance(0.01);
            Testing::drainEvents();
        }
    }

    std::vector<std::string> journal;
    Testing::ManualTimeSource time;
    Testing::FakeMicrophonePermission permission;
    Testing::FakeVoiceProcessing voiceProcessing { journal };
    Testing::FakeRawMicrophone microphone { journal };
    Testing::FakeMicrophones microphones;
    Testing::FakeMicActivity micActivity;
    Testing::FakeWorkspace workspace;
    Testing::FakeUserDefaults defaults;
    Testing::FakeUpdater updater;
    Testing::FakeHotKeys keys;
    Compositing compositing;
    SettingsStore settings { defaults };
    VoiceActivityEngine voice { settings,
        { time, permission, voiceProcessing, microphone, micActivity, microphones, workspace } };
    UpdateController updates { { updater, defaults, [] {} } };
    ScrollEngine engine { settings, time };
    ReadingPace pace { settings, engine, time };
    AssignedKeys assignedKeys;
    std::optional<SettingsWindow> settingsWindow;

private:
    static constexpr int margin = 14;

    QQuickItem& flickable()
    {
        return *settingsWindow->view().rootObject()->findChild<QQuickItem*>(u"settingsFlickable"_s);
    }

    void showAll()
    {
        settingsWindow->view().resize(
            SettingsWindow::contentSize.width(), flickable().property("contentHeight").toInt());
    }

    void showSection()
    {
        auto* const content = flickable().property("contentItem").value<QQuickItem*>();
        for (QQuickItem* section : content->childItems().first()->childItems()) {
            // In whatever language it is.
            if (!section->property("title").toString().contains(m_section))
                continue;
            settingsWindow->view().resize(
                SettingsWindow::contentSize.width(), qRound(section->height()) + 2 * margin);
            Testing::drainEvents();
            flickable().setProperty(
                "contentY", section->mapToItem(content, QPointF()).y() - margin);
        }
    }

    StagePalette m_palette;
    const Extent m_extent;
    const QString m_section;
    const Play m_play;
};

const SettingsStage::Play asItIs = [](SettingsStage&) {};

Scene settings(const QString& name, Look look, Extent extent,
    const SettingsStage::Play& play = asItIs, const QString& section = {}, double scale = 1,
    const Facts& facts = Testing::factsOfALinuxDesktop())
{
    return { u"Settings: "_s + name,
        [=] { return std::make_unique<SettingsStage>(look, extent, play, section, facts); },
        Wallpaper::None, scale };
}

Scene settingsOnAMac(const QString& name, Look look)
{
    return settings(
        name + u", on a Mac"_s, look, Extent::All, asItIs, {}, 1, Testing::factsOfAMac());
}

Scene settingsWhereCapturesMayShowIt()
{
    Facts facts = Testing::factsOfAMac();
    facts.capturesMayShowHidden = true;
    return settings(
        u"where captures may show the prompter"_s, Look::Dark, Extent::All, asItIs, {}, 1, facts);
}

Scene voice(const QString& name, Look look, const SettingsStage::Play& play)
{
    return settings(u"voice, "_s + name, look, Extent::Section, play, u"Voice-follow"_s);
}

Microphones::State twoMicrophones()
{
    Microphones::State state;
    state.choices = { { u"alsa"_s, u"Built-in Audio Analog Stereo"_s },
        { u"bluez"_s, u"Plantronics Voyager 5200"_s } };
    state.heard = u"Plantronics Voyager 5200"_s;
    return state;
}

void listen(SettingsStage& stage)
{
    stage.microphones.become(twoMicrophones());
    stage.settings.setVoiceFollow(true);
    stage.voice.requestPermissionAndStart();
    stage.hearVoice();
}

void listenDuringACall(SettingsStage& stage)
{
    stage.workspace.running = { { u"us.zoom.xos"_s, u"Zoom"_s } };
    listen(stage);
}

void listenForbidden(SettingsStage& stage)
{
    stage.permission.currentStatus = MicrophonePermission::Status::Denied;
    listen(stage);
}

void listenToAMutedMicrophone(SettingsStage& stage)
{
    listen(stage);
    Microphones::State state = twoMicrophones();
    state.trouble = Microphones::Trouble::Muted;
    stage.microphones.become(state);
}

/// Two thirds of five seconds are speech.
void findTheSensitivity(SettingsStage& stage)
{
    listen(stage);
    stage.voice.sensitivityTest()->begin();
    for (int block = 0; block < 100; ++block) {
        stage.voiceProcessing.hear(std::vector<float>(480, block % 3 == 0 ? 0.0005F : 0.03F));
        Testing::drainEvents();
    }
    stage.time.advance(SensitivityTest::seconds);
}

void haveForeignValues(SettingsStage& stage)
{
    stage.settings.setTextColorName(u"Purple"_s);
    stage.settings.setSpeed(1000);
    stage.settings.setFontSize(12);
}

void check(SettingsStage& stage) { stage.updater.setChecks(false, std::nullopt); }

} // namespace

Scenes settingsScenes()
{
    return {
        settings(u"light"_s, Look::Light, Extent::All),
        settings(u"dark"_s, Look::Dark, Extent::All),
        settings(u"the window"_s, Look::Light, Extent::Window),
        settingsOnAMac(u"light"_s, Look::Light),
        settingsOnAMac(u"dark"_s, Look::Dark),
        settingsWhereCapturesMayShowIt(),
        voice(u"listening"_s, Look::Light, listen),
        voice(u"during a call"_s, Look::Dark, listenDuringACall),
        voice(u"denied"_s, Look::Light, listenForbidden),
        voice(u"muted"_s, Look::Dark, listenToAMutedMicrophone),
        voice(u"tested"_s, Look::Light, findTheSensitivity),
        settings(
            u"foreign values"_s, Look::Light, Extent::Section, haveForeignValues, u"Prompter"_s),
        settings(u"checking"_s, Look::Light, Extent::Section, check, u"Updates"_s),
        settings(u"checking, dark"_s, Look::Dark, Extent::Section, check, u"Updates"_s),
        settings(u"the window, 2x"_s, Look::Light, Extent::Window, asItIs, {}, 2),
        settings(u"the window, dark, 2x"_s, Look::Dark, Extent::Window, asItIs, {}, 2),
    };
}

} // namespace Orvello::Gallery
