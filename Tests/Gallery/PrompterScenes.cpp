#include "Tests/Gallery/Scenes.h"

#include "Tests/Support/PrompterServices.h"

#include <QQuickWindow>

namespace Orvello::Gallery {

using namespace Qt::StringLiterals;

namespace {

/// The prompter over its real services, on time that stands still.
class PrompterStage final : public Stage {
public:
    using Play = std::function<void(PrompterStage&)>;

    struct Options {
        QSize size { 720, 200 };
        double scale = 1;
        bool forceCapturable = false;
    };

    PrompterStage(Play play, const Options& options)
        : prompter(services.ofWindow(options.forceCapturable))
        , m_play(std::move(play))
    {
        services.prompt(sample());
        quickWindow().setFlags(Qt::FramelessWindowHint);
        quickWindow().resize(options.size);
    }

    QQuickWindow& window() override { return quickWindow(); }
    void play() override { m_play(*this); }

    Testing::PrompterServices services;
    PrompterWindow prompter;

private:
    static QString sample()
    {
        return u"Thank you all for coming. I want to talk about what we learned this year, and "
               "what we are going to do with it.\n\nWe started with a simple question: what does a "
               "speaker need?"_s;
    }

    QQuickWindow& quickWindow() { return static_cast<QQuickWindow&>(prompter.window()); }

    Play m_play;
};

Scene prompter(const QString& name, Wallpaper wallpaper, const PrompterStage::Play& play,
    const PrompterStage::Options& options = {})
{
    return { u"Prompter: "_s + name, [=] { return std::make_unique<PrompterStage>(play, options); },
        wallpaper, options.scale };
}

void scroll(PrompterStage& stage)
{
    stage.services.settings.setCountdownSeconds(0);
    stage.services.engine.start();
    stage.services.engine.setOffset(54);
}

void openDeck(PrompterStage& stage)
{
    stage.services.openDeck({
        { 1, u"Welcome"_s, u"Good morning, and thank you for making the time."_s },
        { 2, u"What we learned in a long and eventful year"_s,
            u"We set out to make one thing easier, and learned why it had been hard.\n\nLet me "
            u"tell "
            "you three stories."_s },
        { 3, u"Questions"_s, u"What would you like to know?"_s },
    });
}

void showEverything(PrompterStage& stage)
{
    openDeck(stage);
    stage.services.startSlideshow();
    stage.services.showLiveSlide(2);
    stage.services.setInCall(true);
    stage.services.hear(0.03F);
}

} // namespace

Scenes prompterScenes()
{
    return {
        prompter(u"paused"_s, Wallpaper::Document, [](PrompterStage&) {}),
        prompter(u"countdown"_s, Wallpaper::Photo,
            [](PrompterStage& stage) { stage.services.engine.start(); }),
        prompter(u"scrolling"_s, Wallpaper::Photo, &scroll),
        prompter(u"hover pause"_s, Wallpaper::Night,
            [](PrompterStage& stage) {
                scroll(stage);
                stage.services.engine.setHoverPaused(true);
            }),
        prompter(u"listening"_s, Wallpaper::Photo,
            [](PrompterStage& stage) {
                scroll(stage);
                stage.services.engine.setVoiceFollowActive(true);
            }),
        prompter(u"hearing a voice"_s, Wallpaper::Night,
            [](PrompterStage& stage) {
                scroll(stage);
                stage.services.hear(0.03F);
                stage.services.engine.setVoiceGate(true);
            }),
        prompter(u"visible in recordings"_s, Wallpaper::Document,
            [](PrompterStage& stage) { stage.prompter.setVisibleInRecordings(true); }),
        prompter(u"capturable on purpose"_s, Wallpaper::Photo, [](PrompterStage&) {},
            { .forceCapturable = true }),
        prompter(u"slide chip, manual, first slide"_s, Wallpaper::Document, &openDeck),
        prompter(u"slide chip, live"_s, Wallpaper::Photo,
            [](PrompterStage& stage) {
                openDeck(stage);
                stage.services.startSlideshow();
                stage.services.showLiveSlide(2);
            }),
        prompter(u"slide chip, no access, last slide"_s, Wallpaper::Night,
            [](PrompterStage& stage) {
                openDeck(stage);
                stage.services.startSlideshow();
                stage.services.showLiveSlide(9);
                stage.services.refuseToTellTheSlide();
            }),
        prompter(u"share notice"_s, Wallpaper::Document,
            [](PrompterStage& stage) { stage.services.setInCall(true); }),
        prompter(u"everything at once"_s, Wallpaper::Photo, &showEverything,
            { .forceCapturable = true }),
        prompter(u"everything, smallest panel"_s, Wallpaper::Document, &showEverything,
            { .size = { 340, 130 }, .forceCapturable = true }),
        prompter(u"opaque card"_s, Wallpaper::Document,
            [](PrompterStage& stage) { stage.services.settings.setBackgroundOpacity(1); }),
        prompter(u"faintest card"_s, Wallpaper::Document,
            [](PrompterStage& stage) { stage.services.settings.setBackgroundOpacity(0.3); }),
    };
}

} // namespace Orvello::Gallery
