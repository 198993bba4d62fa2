#include "Orvello/Adapters/Linux/Desktop/LinuxWorkspace.h"
#include "Orvello/Adapters/Linux/Desktop/X11WindowServer.h"
#include "Orvello/Adapters/Linux/Desktop/X11Windows.h"
#include "Tests/Support/FakeMicActivity.h"
#include "Tests/Support/ManualTimeSource.h"
#include "Tests/Support/PrivateXServer.h"

#include "Orvello/Presentations/Presenters/PresenterApp.h"
#include "Orvello/Presentations/Slideshow/PresentationMonitor.h"

#include <benchmark/benchmark.h>

#include <csignal>
#include <string_view>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace Orvello {
namespace {

using namespace std::string_view_literals;

/// Idle child processes, ended with it.
class Processes {
public:
    explicit Processes(int count)
    {
        for (int i = 0; i < count; ++i) {
            const pid_t child = ::fork();
            if (child == 0) {
                ::pause();
                ::_exit(0);
            }
            m_children.push_back(child);
        }
    }
    ~Processes()
    {
        for (const pid_t child : m_children)
            ::kill(child, SIGKILL);
        for (const pid_t child : m_children)
            ::waitpid(child, nullptr, 0);
    }

private:
    std::vector<pid_t> m_children;
};

/// What the voice engine asks each second: the running meeting applications, among 500 processes
/// and whatever else the machine runs. Target: <= 2 ms of processor time, the column CPU.
void runningMeetingApplicationsAmong500Processes(benchmark::State& state)
{
    const Processes processes(500);
    const X11Windows windows;
    const LinuxWorkspace workspace(windows);
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(workspace.runningApplications());
}
BENCHMARK(runningMeetingApplicationsAmong500Processes)->Unit(benchmark::kMillisecond);

/// One poll of the presentation monitor during a slideshow, with 50 windows and 500 processes: the
/// frontmost application, the windows, the screens and the running applications. Target: < 3 ms.
void pollDuringSlideshow(benchmark::State& state)
{
    const Processes processes(500);
    Testing::PrivateXServer server;
    std::vector<std::uint32_t> stacking;
    // The slideshow lies lowest, so that every window is looked at.
    stacking.push_back(server.addWindow(0, 0, Testing::PrivateXServer::width,
        Testing::PrivateXServer::height, "libreoffice\0LibreOffice 7.4\0"sv));
    while (stacking.size() < 50)
        stacking.push_back(server.addWindow(0, 0, 200, 100, "Navigator\0firefox\0"sv));
    server.publishStacking(stacking);
    server.publishActive(stacking.front());

    const X11Windows windows;
    const LinuxWorkspace workspace(windows);
    const X11WindowServer windowServer(windows);
    Testing::FakeMicActivity microphone;
    Testing::ManualTimeSource time;
    PresenterTable presenters;
    PresenterApp impress;
    impress.displayName = QStringLiteral("LibreOffice Impress");
    impress.bundleIdentifier = QStringLiteral("libreoffice-impress");
    presenters.add(impress);
    PresentationMonitor monitor({ presenters, workspace, windowServer, microphone, time });
    monitor.start();
    if (!monitor.isPresenting())
        state.SkipWithError("the slideshow was not seen");
    for ([[maybe_unused]] auto _ : state)
        time.advance(1.0);
}
BENCHMARK(pollDuringSlideshow)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace Orvello

BENCHMARK_MAIN();
