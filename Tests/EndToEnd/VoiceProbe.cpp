// The voice engine on the platform's own sound, without a window: what it logs and publishes goes
// to standard output with the monotonic time, and each line of standard input is a command:
// "start", "stop", "sensitivity 0.8", "app us.zoom.xos Zoom", "noapp", "microphone NAME", "peak"
// (of the level since the last time), "stall" (the longest time for which the main loop did not
// turn, but for want of a processor, since the last time), "state", "quit".

#include "Orvello/Adapters/Linux/Sound/PulseSound.h"
#include "Orvello/Adapters/Portable/QtTimeSource.h"
#include "Orvello/Diagnostics/AppLog.h"
#include "Orvello/Platform/Early/SystemLog.h"
#include "Orvello/Settings/Store/SettingsStore.h"
#include "Orvello/Voice/ProcessMicActivity.h"
#include "Orvello/Voice/VoiceActivityEngine.h"
#include "Tests/Support/FakeUserDefaults.h"
#include "Tests/Support/FakeWorkspace.h"

#include <QCoreApplication>
#include <QSocketNotifier>
#include <QTimer>

#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>

namespace Orvello {
namespace {

class Journal final : public SystemLog {
public:
    explicit Journal(const TimeSource& time)
        : m_time(time)
    {
    }
    void write(std::string_view message) override
    {
        std::printf("%.6f %.*s\n", m_time.now(), static_cast<int>(message.size()), message.data());
        std::fflush(stdout);
    }

private:
    const TimeSource& m_time;
};

/// For how long the main thread was ready to run and other programs had the processors.
double secondsInRunQueue()
{
    std::ifstream statistics("/proc/self/schedstat"); // The main thread's.
    double running = 0;
    double waiting = 0;
    statistics >> running >> waiting;
    return waiting / 1e9;
}

class Probe final {
public:
    explicit Probe(const QString& folder)
    {
        AppLog::Session session;
        session.applicationSupport = folder.toStdString();
        session.systemLog = &m_journal;
        AppLog::start(session);
        QObject::connect(&m_engine, &VoiceActivityEngine::levelChanged, &m_engine,
            [this] { m_peak = std::max(m_peak, m_engine.level()); });
        QObject::connect(&m_turn, &QTimer::timeout, &m_engine, [this] {
            const double now = m_time.now() - secondsInRunQueue();
            m_stall = std::max(m_stall, now - std::exchange(m_lastTurn, now));
        });
        m_turn.setTimerType(Qt::PreciseTimer);
    }

    /// False for the end.
    bool obey(const std::string& line)
    {
        std::istringstream words(line);
        std::string command;
        words >> command;
        if (command == "start") {
            m_engine.requestPermissionAndStart();
        } else if (command == "stop") {
            m_engine.stop();
        } else if (command == "sensitivity") {
            double sensitivity = 0;
            words >> sensitivity;
            m_settings.setVoiceSensitivity(sensitivity);
        } else if (command == "app") {
            std::string identifier;
            std::string name;
            words >> identifier >> name;
            m_workspace.running
                = { { QString::fromStdString(identifier), QString::fromStdString(name) } };
        } else if (command == "noapp") {
            m_workspace.running.clear();
        } else if (command == "peak") {
            m_journal.write("peak " + std::to_string(std::exchange(m_peak, 0.0f)));
        } else if (command == "stall") {
            m_journal.write("stall " + std::to_string(std::exchange(m_stall, 0.0)));
            if (!m_turn.isActive())
                m_lastTurn = m_time.now() - secondsInRunQueue();
            m_turn.start(1);
        } else if (command == "microphone") {
            std::string name;
            words >> name;
            m_sound.microphones.choose(QString::fromStdString(name));
        } else if (command == "state") {
            const Microphones::State heard = m_sound.microphones.state();
            std::ostringstream state;
            state << "state listening=" << m_engine.isListening() << " aec=" << m_engine.aecActive()
                  << " speaking=" << m_engine.isSpeaking()
                  << " trouble=" << static_cast<int>(heard.trouble)
                  << " heard=" << heard.heard.toStdString() << " level=" << m_engine.level();
            m_journal.write(state.str());
        }
        return command != "quit";
    }

private:
    QtTimeSource m_time;
    Journal m_journal { m_time };
    Testing::FakeUserDefaults m_defaults;
    SettingsStore m_settings { m_defaults };
    PulseSound m_sound;
    ProcessMicActivity m_micActivity { m_sound.processes, QCoreApplication::applicationPid() };
    Testing::FakeWorkspace m_workspace;
    VoiceActivityEngine m_engine { m_settings,
        { m_time, m_sound.permission, m_sound.voiceProcessing, m_sound.microphone, m_micActivity,
            m_sound.microphones, m_workspace } };
    float m_peak = 0;
    QTimer m_turn;
    double m_lastTurn = 0;
    double m_stall = 0;
};

} // namespace
} // namespace Orvello

int main(int argc, char** argv)
{
    std::ios::sync_with_stdio(false); // Otherwise nobody can tell that a second line has come.
    QCoreApplication application(argc, argv);
    Orvello::Probe probe(application.arguments().value(1));
    QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, &application, [&] {
        do {
            std::string line;
            if (!std::getline(std::cin, line) || !probe.obey(line))
                return QCoreApplication::quit();
        } while (std::cin.rdbuf()->in_avail() > 0);
    });
    return QCoreApplication::exec();
}
