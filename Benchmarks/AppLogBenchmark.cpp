// AppLog::write against raw write(2) of the same lines on one descriptor, by one thread and by
// four. Both write to the same disk, in turns, so that the machine's noise hits both alike.

#include "Orvello/Diagnostics/AppLog.h"
#include "Orvello/Platform/Early/SystemLog.h"

#include <QTemporaryDir>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <string>
#include <thread>
#include <unistd.h>
#include <vector>

using namespace Orvello;
using namespace Qt::StringLiterals;

namespace {

constexpr int roundCount = 9;
constexpr int linesPerRound = 100'000;

/// What a session with slide tracking and voice-follow logs, in turns.
constexpr std::array<const char*, 4> sameLines {
    "2026-11-15T20:19:36.123Z SYNC slide=3\n",
    "2026-11-15T20:19:36.123Z VAD speaking=1 rms=0.0312 thr=0.0150\n",
    "2026-11-15T20:19:36.123Z STEALTH apply wid=77 fresh=1 mode=shape sckExcludeApplied=1\n",
    "2026-11-15T20:19:36.123Z IMPORT_PPTX ok slides=42 file=Jahresbericht für alle.pptx\n",
};

void writeToAppLog(int i)
{
    static const QString file = u"Jahresbericht für alle.pptx"_s;
    switch (i % 4) {
    case 0:
        return AppLog::write("Orvello SYNC slide=%d", 3);
    case 1:
        return AppLog::write("Orvello VAD speaking=%d rms=%.4f thr=%.4f", true, 0.0312, 0.0150);
    case 2:
        return AppLog::write("Orvello STEALTH %@ wid=%ld fresh=%d mode=%@ sckExcludeApplied=%d",
            "apply", 77L, true, "shape", true);
    default:
        return AppLog::write("Orvello IMPORT_PPTX ok slides=%d file=%@", 42, file);
    }
}

class NullSystemLog final : public SystemLog {
public:
    void write(std::string_view) override { }
};

/// Seconds that `threadCount` threads take to write the lines of a round with `writeLine`.
template <typename WriteLine>
double secondsFor(int threadCount, WriteLine writeLine)
{
    const auto work = [threadCount, &writeLine] {
        for (int i = 0; i < linesPerRound / threadCount; ++i)
            writeLine(i);
    };
    const auto start = std::chrono::steady_clock::now();
    std::vector<std::thread> others;
    for (int i = 1; i < threadCount; ++i)
        others.emplace_back(work);
    work();
    for (std::thread& other : others)
        other.join();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

double medianOf(std::vector<double> values)
{
    std::ranges::sort(values);
    return values[values.size() / 2];
}

void compare(int threadCount, const std::string& rawPath)
{
    std::vector<double> logSeconds;
    std::vector<double> rawSeconds;
    std::vector<double> ratios;
    for (int round = 0; round < roundCount; ++round) {
        const int raw = ::open(rawPath.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_TRUNC, 0644);
        rawSeconds.push_back(secondsFor(threadCount, [raw](int i) {
            const std::string_view line = sameLines[static_cast<std::size_t>(i) % 4];
            if (::write(raw, line.data(), line.size()) < 0)
                std::abort();
        }));
        ::close(raw);
        logSeconds.push_back(secondsFor(threadCount, writeToAppLog));
        ratios.push_back(logSeconds.back() / rawSeconds.back());
    }
    const auto [lowest, highest] = std::ranges::minmax(ratios);
    constexpr double nanosecondsPerLine = 1e9 / linesPerRound;
    std::printf(
        "AppLog::write %.0f ns, raw write(2) %.0f ns per line; ratios of %d rounds %.2f to %.2f\n",
        medianOf(logSeconds) * nanosecondsPerLine, medianOf(rawSeconds) * nanosecondsPerLine,
        roundCount, lowest, highest);
    std::printf("AppLog::write / raw write(2), %d thread%s: %.2f\n", threadCount,
        threadCount == 1 ? "" : "s", medianOf(ratios));
}

} // namespace

int main()
{
    const QTemporaryDir folder;
    NullSystemLog systemLog;
    AppLog::Session session;
    session.applicationSupport = folder.path().toStdString();
    session.systemLog = &systemLog;
    AppLog::start(session);

    const std::string rawPath = folder.filePath(u"raw.log"_s).toStdString();
    compare(1, rawPath);
    compare(4, rawPath);
    return EXIT_SUCCESS;
}
