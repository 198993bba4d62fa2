// What the prompter costs sixty times a second for as long as the program lives.
//
// Limits: a tick that is idle, or during which the pointer holds the text, takes under 100 ns,
// allocates nothing and announces nothing.

#include "Orvello/Prompting/Engine/ScrollEngine.h"

#include "Orvello/Platform/Early/UserDefaults.h"
#include "Orvello/Settings/Store/SettingsStore.h"

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <new>
#include <vector>

namespace {

std::size_t allocations = 0;

} // namespace

void* operator new(std::size_t size)
{
    ++allocations;
    if (void* memory = std::malloc(size))
        return memory;
    throw std::bad_alloc();
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

namespace Orvello {
namespace {

class NoDefaults final : public UserDefaults {
public:
    QVariant value(const QString&) const override { return {}; }
    void setValue(const QString&, const QVariant&) override { }
    void remove(const QString&) override { }
    QVariantMap storedValues() const override { return {}; }
};

/// A clock at a fixed pace whose calls are cranked by hand, so that only the tick is measured.
class CrankedTime final : public TimeSource {
public:
    double now() const override { return m_now; }
    Date date() const override { return {}; }
    std::unique_ptr<Ticket> callAfter(double, Action) override { return nullptr; }
    std::unique_ptr<Ticket> callEvery(double, Action action) override
    {
        m_action = std::move(action);
        return std::make_unique<CrankTicket>();
    }

    void crank()
    {
        m_now += 1e-6;
        m_action();
    }

private:
    class CrankTicket final : public Ticket { };

    double m_now = 0;
    Action m_action;
};

class ScrollEngineBenchmark : public benchmark::Fixture {
public:
    ScrollEngineBenchmark()
    {
        settings.setCountdownSeconds(0);
        engine.setContentHeight(1e12);
        engine.setViewportHeight(200);
        for (const auto changed : { &ScrollEngine::offsetChanged, &ScrollEngine::isRunningChanged,
                 &ScrollEngine::countdownChanged })
            QObject::connect(&engine, changed, [this] { ++notifications; });
        engine.start();
    }

protected:
    void crank(benchmark::State& state)
    {
        const std::size_t allocationsBefore = allocations;
        notifications = 0;
        for ([[maybe_unused]] auto _ : state)
            time.crank();
        const auto ticks = static_cast<double>(state.iterations());
        state.counters["allocations"]
            = static_cast<double>(allocations - allocationsBefore) / ticks;
        state.counters["notifications"] = static_cast<double>(notifications) / ticks;
    }

    NoDefaults defaults;
    SettingsStore settings { defaults };
    CrankedTime time;
    ScrollEngine engine { settings, time };
    std::size_t notifications = 0;
};

BENCHMARK_F(ScrollEngineBenchmark, idleTick)(benchmark::State& state)
{
    engine.toggle();
    crank(state);
    engine.toggle();
    state.SetLabel("limits: 100 ns, no allocation, no notification");
}

BENCHMARK_F(ScrollEngineBenchmark, hoverPausedTick)(benchmark::State& state)
{
    engine.setHoverPaused(true);
    crank(state);
    engine.setHoverPaused(false);
    state.SetLabel("limits: 100 ns, no allocation, no notification");
}

BENCHMARK_F(ScrollEngineBenchmark, runningTick)(benchmark::State& state) { crank(state); }

} // namespace
} // namespace Orvello

BENCHMARK_MAIN();
