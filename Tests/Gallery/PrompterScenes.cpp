#include "Tests/Gallery/Scenes.h"

#include "Tests/Support/PrompterServices.h"

#include <QCoreApplication>
#include <QMouseEvent>
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

PrompterStage::Play saying(const QString& text)
{
    return [text](PrompterStage& stage) { stage.services.prompt(text); };
}

void scroll(PrompterStage& stage)
{
    stage.services.settings.setCountdownSeconds(0);
    stage.services.engine.start();
    stage.services.engine.setOffset(54);
}

void pointAtTheStatus(PrompterStage& stage)
{
    const QPointF place(40, stage.window().height() - 15);
    QMouseEvent move(QEvent::MouseMove, place, stage.window().mapToGlobal(place), Qt::NoButton,
        Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&stage.window(), &move);
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

void presentOtherDeck(PrompterStage& stage)
{
    openDeck(stage);
    stage.services.presentOtherDeck(u"Budget for next year\x1e"
                                    "Costs\x1f\x1eIncome\x1f"_s);
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
        prompter(u"reading time"_s, Wallpaper::Photo,
            [](PrompterStage& stage) {
                stage.services.settings.setCardTime(u"both"_s);
                scroll(stage);
            }),
        prompter(u"what the microphone hears"_s, Wallpaper::Night,
            [](PrompterStage& stage) {
                stage.services.microphones.become({ .heard = u"Headset"_s });
                stage.services.settings.setVoiceFollow(true);
                stage.services.hear(0.03F);
                pointAtTheStatus(stage);
            }),
        prompter(u"visible in recordings"_s, Wallpaper::Document,
            [](PrompterStage& stage) { stage.prompter.setVisibleInRecordings(true); }),
        prompter(u"visible in recordings, folded"_s, Wallpaper::Document,
            [](PrompterStage& stage) {
                stage.prompter.setVisibleInRecordings(true);
                stage.services.settings.setRecordingBadgeFolded(true);
            }),
        prompter(u"share notice where nothing hides a window"_s, Wallpaper::Photo,
            [](PrompterStage& stage) {
                stage.prompter.setVisibleInRecordings(true);
                stage.services.setInCall(true);
            }),
        prompter(u"capturable on purpose"_s, Wallpaper::Photo, [](PrompterStage&) {},
            { .forceCapturable = true }),
        prompter(u"slide chip, manual, first slide"_s, Wallpaper::Document, &openDeck),
        prompter(u"a slide without notes"_s, Wallpaper::Night,
            [](PrompterStage& stage) {
                stage.services.openDeck({ { 1, u"Welcome"_s, {} } });
            }),
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
        prompter(u"another deck on screen"_s, Wallpaper::Photo, &presentOtherDeck),
        prompter(u"another deck on screen, smallest panel"_s, Wallpaper::Document,
            &presentOtherDeck, { .size = { 340, 130 } }),
        prompter(u"share notice"_s, Wallpaper::Document,
            [](PrompterStage& stage) { stage.services.setInCall(true); }),
        prompter(u"everything at once"_s, Wallpaper::Photo, &showEverything,
            { .forceCapturable = true }),
        prompter(u"everything, smallest panel"_s, Wallpaper::Document, &showEverything,
            { .size = { 340, 130 }, .forceCapturable = true }),
        prompter(u"opaque card"_s, Wallpaper::Document,
            [](PrompterStage& stage) { stage.services.settings.setBackgroundOpacity(1); }),
        prompter(u"Arabic and Latin"_s, Wallpaper::Photo,
            saying(u"مرحبا بكم جميعا، وشكرا لحضوركم. "
                   "نبدأ اليوم مع Orvello 1.0 ثم نجيب عن أسئلتكم (ثلاثة منها).\n\nشكرا لكم."_s)),
        prompter(u"Hebrew and Latin"_s, Wallpaper::Photo,
            saying(u"תודה לכולכם שבאתם. היום נדבר על "
                   "Orvello 1.0 ועל מה שלמדנו השנה (בקצרה).\n\nנתחיל?"_s)),
        prompter(u"Chinese"_s, Wallpaper::Night,
            saying(u"感谢各位今天的到来。我想谈谈我们今年学到了什么,"
                   "以及我们打算如何运用它。我们从一个简单的问题开始:演讲者需要什么?"_s)),
        prompter(u"Japanese"_s, Wallpaper::Night,
            saying(
                u"本日はお集まりいただき、ありがとうございます。"
                "今年学んだことと、これから何をするかについてお話しします。「話し手には何が必要か?」"_s)),
        prompter(u"emoji"_s, Wallpaper::Photo,
            saying(
                u"Smile 😀, wave 👋🏽, and thank the family 👨‍👩‍👧‍👦 "
                "from 🇩🇪 and 🇯🇵. ❤️ Three cheers: 🎉🎉🎉\nThen go on as before."_s)),
        prompter(u"combining marks"_s, Wallpaper::Night,
            saying(u"Tiếng Việt: Hỗ trợ đầy đủ. Crème brûlée, naïve, Ångström, šílený, "
                   "q̃ n̈ x̂ z̦"_s)),
        prompter(u"a line without a space, 100,000 characters"_s, Wallpaper::Document,
            saying(u"abcdefghijklmnopqrstuvwxyz0123456789"_s.repeated(2778))),
        prompter(u"font size 24.5"_s, Wallpaper::Night,
            [](PrompterStage& stage) { stage.services.settings.setFontSize(24.5); }),
        prompter(u"largest text"_s, Wallpaper::Photo,
            [](PrompterStage& stage) { stage.services.settings.setFontSize(64); },
            { .size = { 1000, 320 } }),
        prompter(
            u"narrowest text"_s, Wallpaper::Photo, [](PrompterStage&) {}, { .size = { 340, 300 } }),
        prompter(u"scale 1.25"_s, Wallpaper::Photo, &showEverything, { .scale = 1.25 }),
        prompter(u"scale 1.5"_s, Wallpaper::Document, &showEverything, { .scale = 1.5 }),
        prompter(u"scale 2"_s, Wallpaper::Photo, &showEverything, { .scale = 2 }),
        prompter(u"scale 1.5, scrolling"_s, Wallpaper::Night, &scroll, { .scale = 1.5 }),
        prompter(u"faintest card"_s, Wallpaper::Document,
            [](PrompterStage& stage) { stage.services.settings.setBackgroundOpacity(0.3); }),
        prompter(u"outlined letters"_s, Wallpaper::Document,
            [](PrompterStage& stage) {
                stage.services.settings.setBackgroundOpacity(0.15);
                stage.services.settings.setTextColorName(u"Pink"_s);
                scroll(stage);
            }),
    };
}

} // namespace Orvello::Gallery
