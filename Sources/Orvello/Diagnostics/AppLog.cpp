#include "Orvello/Diagnostics/AppLog.h"

#include "Orvello/Diagnostics/LogFile.h"
#include "Orvello/Diagnostics/LogFormat.h"
#include "Orvello/Diagnostics/LossyOutput.h"
#include "Orvello/Diagnostics/SessionMarker.h"
#include "Orvello/Diagnostics/Timestamp.h"
#include "Orvello/Foundation/PrivateFolder.h"
#include "Orvello/Platform/Early/SystemLog.h"

#include <QString>

#include <atomic>
#include <exception>
#include <unistd.h>

// Both editions write the same texts, "macOS" in the launch line among them: one tool reads the
// logs of either, and finds the system's version in the same place.

namespace Orvello::AppLog {

namespace {

constexpr std::string_view productPrefix = "Orvello ";

/// A crash handler reads it, so it is initialised before any code runs and never destroyed.
constinit std::atomic<int> descriptor { -1 };
static_assert(std::atomic<int>::is_always_lock_free);

/// Where messages go until a session names the system's log.
class StandardError final : public SystemLog {
public:
    void write(std::string_view message) override
    {
        std::string line(message);
        line += '\n';
        m_output.write(line);
    }

private:
    LossyOutput m_output { STDERR_FILENO };
};

struct Log {
    StandardError standardError;
    std::atomic<SystemLog*> systemLog { &standardError };
    LogFile file { descriptor };
    std::string directory;
    std::string fileURL;
    std::string markerURL;
    bool previousSessionEndedAbnormally = false;
    std::atomic<bool> hasOpenSession = false;
};

/// Never destroyed: the destructors of other static objects may still log.
Log& log()
{
    static Log& instance = *new Log;
    return instance;
}

/// Builds "<time> <message>\n" in one buffer. The time is that of the writing, so it is filled in
/// after the system's log has the message.
void writeLine(std::string_view format, std::span<const LogArgument> arguments)
{
    constexpr std::size_t messageStart = Timestamp::length + 1;
    constexpr std::size_t usualLineLength = 256;
    std::string line;
    line.reserve(usualLineLength);
    line.assign(messageStart, ' ');
    LogFormat::append(line, format, arguments);
    if (std::string_view(line).substr(messageStart).starts_with(productPrefix))
        line.erase(messageStart, productPrefix.size());

    log().systemLog.load()->write(std::string_view(line).substr(messageStart));

    line.replace(0, Timestamp::length, Timestamp::now().text());
    line += '\n';
    log().file.append(line);
}

std::string markerText(const Session& session)
{
    return session.version + " (" + session.build + ") pid " + std::to_string(::getpid())
        + " started " + std::string(Timestamp::now().text());
}

} // namespace

void start(const Session& session)
{
    log().systemLog = session.systemLog ? session.systemLog : &log().standardError;
    log().directory = session.applicationSupport + "/Orvello/logs";
    log().fileURL = log().directory + "/orvello.log";
    log().markerURL = log().directory + "/session.marker";
    makePrivateFolder(QString::fromStdString(log().directory));
    log().file.open(log().fileURL);

    write("LAUNCH Orvello %@ (%@) %@ macOS %@ pid %d", session.version, session.build,
        session.architecture, session.osVersion, ::getpid());
    const SessionMarker marker(log().markerURL);
    const std::optional<std::string> leftBehind = marker.text();
    log().previousSessionEndedAbnormally = leftBehind.has_value();
    if (leftBehind)
        write("PREVIOUS_SESSION did not end cleanly: %@", *leftBehind);
    marker.write(markerText(session));
    log().hasOpenSession = true;
}

void writeArguments(std::string_view format, std::span<const LogArgument> arguments)
{
    try {
        writeLine(format, arguments);
    } catch (const std::exception&) {
        // No memory for the line: it is lost, and the program goes on.
    }
}

void endSession()
{
    write("QUIT clean");
    SessionMarker(log().markerURL).remove();
    log().hasOpenSession = false;
}

bool hasOpenSession() noexcept { return log().hasOpenSession; }

const std::string& directory() { return log().directory; }

const std::string& fileURL() { return log().fileURL; }

int fd() noexcept { return descriptor; }

bool previousSessionEndedAbnormally() { return log().previousSessionEndedAbnormally; }

} // namespace Orvello::AppLog
