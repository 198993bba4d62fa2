#include "Tests/Gallery/Scenes.h"

#include "Orvello/Settings/SettingsStore.h"
#include "Orvello/Shell/SettingsWindow.h"
#include "Orvello/Shell/UpdateController.h"
#include "Orvello/Voice/VoiceActivityEngine.h"
#include "Tests/Gallery/Palettes.h"
#include "Tests/Support/EventLoop.h"
#include "Tests/Support/FakeMicActivity.h"
#include "Tests/Support/FakeMicrophonePermission.h"
#include "Tests/Support/FakeRawMicrophone.h"
#include "Tests/Support/FakeUpdater.h"
#include "Tests/Support/FakeUserDefaults.h"
#include "Tests/Support/FakeVoiceProcessing.h"
#include "Tests/Support/FakeWorkspace.h"
#include "Tests/Support/ManualTimeSource.h"

#include <QGuiApplication>
#include <QQuickItem>

#include <vector>

namespace Orvello::Gallery {

using namespace Qt::StringLiterals;

namespace {

/// The settings over their real services, on fake ports. As high as its content, unless the screen
/// is to be low.
class SettingsStage final : public Stage {
public:
    using Play = std::function<void(SettingsStage&)>;

    SettingsStage(const Look& look, bool isWhole, Play play)
        : m_palette(look)
        , m_isWhole(isWhole)
        , m_play(std::move(play))
    {
        updates.start();
        updater.setChecks(true, Date::fromUnixSeconds(1.79e9));
        settingsWindow.emplace(SettingsWindow::Services { settings, voice, updates, canExclude });
        QQuickView& view = settingsWindow->view();
        view.setFlags(Qt::FramelessWindowHint);
    }

    QQuickWindow& window() override { return settingsWindow->view(); }
    void play() override
    {
        if (m_isWhole)
            settingsWindow->view().resize(SettingsWindow::contentSize.width(), wholeHeight());
        m_play(*this);
        Testing::drainEvents();
    }

    /// Hears a loud voice on whichever path captures.
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

    bool canExclude = false;
    std::vector<std::string> journal;
    Testing::ManualTimeSource time;
    Testing::FakeMicrophonePermission permission;
    Testing::FakeVoiceProcessing voiceProcessing { journal };
    Testing::FakeRawMicrophone microphone { journal };
    Testing::FakeMicActivity micActivity;
    Testing::FakeWorkspace workspace;
    Testing::FakeUserDefaults defaults;
    Testing::FakeUpdater updater;
    SettingsStore settings { defaults };
    VoiceActivityEngine voice { settings,
        { time, permission, voiceProcessing, microphone, micActivity, workspace } };
    UpdateController updates { { updater, defaults, [] {} } };
    std::optional<SettingsWindow> settingsWindow;

private:
    int wholeHeight()
    {
        const auto* flickable
            = settingsWindow->view().rootObject()->findChild<QQuickItem*>(u"settingsFlickable"_s);
        return flickable->property("contentHeight").toInt();
    }

    StagePalette m_palette;
    const bool m_isWhole;
    Play m_play;
};

Scene settings(
    const QString& name, const Look& look, double scale, bool isWhole,
    const SettingsStage::Play& play = [](SettingsStage&) {})
{
    return { u"Settings: "_s + name,
        [=] { return std::make_unique<SettingsStage>(look, isWhole, play); }, Wallpaper::None,
        scale };
}

} // namespace

Scenes settingsScenes()
{
    return {
        settings(u"light"_s, Look::Light, 1, true),
        settings(u"dark"_s, Look::Dark, 1, true),
        settings(u"window, dark, 2x"_s, Look::Dark, 2, false),
        settings(u"window"_s, Look::Light, 1, false),
    };
}

} // namespace Orvello::Gallery
