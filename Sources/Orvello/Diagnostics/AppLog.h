#pragma once

#include "Orvello/Diagnostics/LogArgument.h"

#include <array>
#include <span>
#include <string>
#include <string_view>

namespace Orvello {

class SystemLog;

/// The program's one diagnostic log: a text file under the application-support folder, kept open
/// for the life of the process, and a marker file that exists exactly while a session runs. Any
/// thread, unless a function says otherwise. Nothing here ever fails visibly.
namespace AppLog {

/// What a session says about itself.
struct Session {
    std::string applicationSupport; ///< The folder above "Orvello/logs", absolute.
    std::string version = "?";
    std::string build = "?";
    std::string architecture; ///< The one it was built for, such as "arm64".
    std::string osVersion;
    SystemLog* systemLog = nullptr; ///< Lives as long as the process. None is standard error.
};

/// Opens the log, writes the launch line, reports a previous session that left its marker, and
/// writes a new marker. The first statement of the process, before any other thread exists.
void start(const Session& session);

/// Logs one line; LogFormat.h describes the formats.
void writeArguments(std::string_view format, std::span<const LogArgument> arguments);

/// Logs one line, as in `AppLog::write("Orvello SYNC slide=%d", slide)`. A leading "Orvello " is
/// not part of the line. Until start() the line reaches standard error alone.
template <typename... Arguments>
void write(std::string_view format, const Arguments&... arguments)
{
    // One expression, so that what an argument converts to lives until the line is written.
    writeArguments(
        format, std::array<LogArgument, sizeof...(Arguments)> { LogArgument(arguments)... });
}

/// Logs "QUIT clean" and removes the marker. The log stays open for what is still written.
void endSession();

/// From start() to endSession(). Any thread.
[[nodiscard]] bool hasOpenSession() noexcept;

/// The folder of the log files; empty until start().
[[nodiscard]] const std::string& directory();

/// The path of the live log file; empty until start().
[[nodiscard]] const std::string& fileURL();

/// The descriptor of the live log file, -1 while it is closed. Async-signal-safe.
[[nodiscard]] int fd() noexcept;

/// Whether start() found the marker of an earlier session.
[[nodiscard]] bool previousSessionEndedAbnormally();

} // namespace AppLog
} // namespace Orvello
