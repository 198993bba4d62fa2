#include "Orvello/Library/Store/LibraryStore.h"
#include "Orvello/Presentations/Slideshow/DeckController.h"
#include "Orvello/Settings/Store/SettingsStore.h"
#include "Tests/Support/EventLoop.h"
#include "Tests/Support/FakeFolders.h"
#include "Tests/Support/FakeUserDefaults.h"
#include "Tests/Support/SlideshowStage.h"

#include <QCoreApplication>

#include <benchmark/benchmark.h>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;

QList<SlideNote> slides(qint64 count)
{
    QList<SlideNote> notes;
    for (qint64 index = 1; index <= count; ++index)
        notes.append({ index, u"Slide %1"_s.arg(index), u"What to say. "_s.repeated(30) });
    return notes;
}

/// A deck of so many slides under a controller.
struct DeckFixture {
    explicit DeckFixture(qint64 count)
    {
        library.addDeck(u"Deck"_s, slides(count), u"Keynote"_s);
        Testing::drainEvents();
    }

    Testing::SlideshowStage stage;
    Testing::FakeUserDefaults defaults;
    Testing::FakeFolders folders;
    SettingsStore settings { defaults };
    LibraryStore library { defaults, folders, stage.time, {} };
    SlideSyncService sync { stage.monitor, stage.presenters, stage.time };
    DeckController controller { library, settings, sync };
};

/// One change of the slide.
void stepThroughDeck(benchmark::State& state)
{
    DeckFixture deck(state.range(0));
    bool isForward = true;
    for ([[maybe_unused]] auto _ : state) {
        isForward ? deck.controller.showNextSlide() : deck.controller.showPreviousSlide();
        isForward = !isForward;
    }
}
BENCHMARK(stepThroughDeck)->Arg(10)->Arg(10000)->Unit(benchmark::kMicrosecond);

/// One change that leaves the whole deck's text on show.
void recomputeWholeDeck(benchmark::State& state)
{
    DeckFixture deck(state.range(0));
    deck.settings.setSlideSync(false);
    Testing::drainEvents();
    for ([[maybe_unused]] auto _ : state)
        deck.controller.showNextSlide();
}
BENCHMARK(recomputeWholeDeck)->Arg(10)->Arg(10000)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace Orvello

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
