#pragma once

#include <QString>
#include <QUuid>

#include <array>
#include <concepts>
#include <cstdint>
#include <filesystem>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <variant>

namespace Orvello {

class SystemLog;

/// One argument of a log line: a text, an integer or a floating-point number.
class LogArgument {
public:
    using Value = std::variant<std::string, std::int64_t, std::uint64_t, double>;

    template <std::signed_integral Integer>
    LogArgument(Integer value)
        : m_value(static_cast<std::int64_t>(value))
    {
    }
    template <std::unsigned_integral Integer>
    LogArgument(Integer value)
        : m_value(static_cast<std::uint64_t>(value))
    {
    }
    template <std::floating_point Number>
    LogArgument(Number value)
        : m_value(static_cast<double>(value))
    {
    }
    LogArgument(const char* text)
        : m_value(std::string(text))
    {
    }
    LogArgument(std::string_view text)
        : m_value(std::string(text))
    {
    }
    LogArgument(const std::string& text)
        : m_value(text)
    {
    }
    LogArgument(const QString& text)
        : m_value(text.toStdString())
    {
    }

    const Value& value() const { return m_value; }

private:
    Value m_value;
};

/// The program's one diagnostic log: a text file under the application-support folder, kept open
/// for the life of the process, and a marker file that exists exactly while a session runs. Any
/// thread, unless a function says otherwise. Nothing here ever fails visibly.
namespace AppLog {

/// What a session says about itself. The system log must live as long as the process.
struct Session {
    std::filesystem::path applicationSupport; ///< The folder above "Orvello/logs".
    std::string version = "?";
    std::string build = "?";
    std::string architecture;
    std::string osVersion;
    SystemLog* systemLog = nullptr; ///< Without one, messages go to standard error.
};

/// Opens the log, writes the launch line, reports a previous session that left its marker, and
/// writes a new marker. Called once, before any other thread exists.
void start(const Session& session);

/// Logs one line. `format` is a printf format with the Foundation conversion %@ for texts.
void writeArguments(std::string_view format, std::span<const LogArgument> arguments);

/// Logs one line, as in `AppLog::write("Orvello SYNC slide=%d", slide)`. A leading "Orvello " is
/// not part of the line.
template <typename... Arguments>
void write(std::string_view format, const Arguments&... arguments)
{
    const std::array<LogArgument, sizeof...(Arguments)> list { LogArgument(arguments)... };
    writeArguments(format, list);
}

/// Logs "QUIT clean" and removes the marker.
void endSession();

} // namespace AppLog
} // namespace Orvello
