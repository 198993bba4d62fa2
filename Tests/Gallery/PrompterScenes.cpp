#include "Tests/Gallery/Scenes.h"

#include "Orvello/Library/LibraryStore.h"
#include "Orvello/Presentations/DeckController.h"
#include "Orvello/Prompting/ScrollEngine.h"
#include "Orvello/Settings/SettingsStore.h"
#include "Orvello/Shell/PrompterWindow.h"
#include "Tests/Support/EventLoop.h"
#include "Tests/Support/FakeFolders.h"
#include "Tests/Support/FakeUserDefaults.h"
#include "Tests/Support/SlideshowStage.h"

#include <QQuickWindow>

namespace Orvello::Gallery {

using namespace Qt::StringLiterals;

namespace {

/// The prompter over its real services, on time that stands still.
class PrompterStage final : public Stage {
public:
    using Play = std::function<void(PrompterStage&)>;

    explicit PrompterStage(Play play)
        : m_play(std::move(play))
    {
        library.updateActive(std::nullopt, sample());
        Testing::drainEvents();
        quickWindow().setFlags(Qt::FramelessWindowHint);
        quickWindow().resize(720, 200);
    }

    QQuickWindow& window() override { return quickWindow(); }
    void play() override { m_play(*this); }

    Testing::SlideshowStage desktop;
    Testing::FakeUserDefaults defaults;
    Testing::FakeFolders folders;
    SettingsStore settings { defaults };
    LibraryStore library { defaults, folders, desktop.time };
    SlideSyncService sync { desktop.monitor, desktop.presenters, desktop.time };
    DeckController deck { library, settings, sync };
    ScrollEngine engine { settings, desktop.time };
    PrompterWindow prompter { { engine, settings, deck, desktop.time, false } };

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

Scene prompter(const QString& name, Wallpaper wallpaper, const PrompterStage::Play& play)
{
    return { u"Prompter: "_s + name, [play] { return std::make_unique<PrompterStage>(play); },
        wallpaper };
}

} // namespace

Scenes prompterScenes()
{
    return {
        prompter(u"paused"_s, Wallpaper::Document, [](PrompterStage&) {}),
        prompter(
            u"countdown"_s, Wallpaper::Photo, [](PrompterStage& stage) { stage.engine.start(); }),
    };
}

} // namespace Orvello::Gallery
