#include "Orvello/Adapters/Linux/Early/Syslog.h"

#include <cstdlib>
#include <string>
#include <sys/stat.h>
#include <syslog.h>
#include <unistd.h>

namespace Orvello {

namespace {

/// Whether standard error goes to the journal, which gets what goes to syslog(3) as well. The
/// journal names its stream in the environment; programs that redirect it leave the name there.
bool isStandardErrorTheJournals()
{
    const char* const stream = std::getenv("JOURNAL_STREAM");
    struct stat status { };
    if (!stream || ::fstat(STDERR_FILENO, &status) != 0)
        return false;
    return stream == std::to_string(status.st_dev) + ':' + std::to_string(status.st_ino);
}

} // namespace

Syslog::Syslog()
    : m_isStandardErrorTheSame(isStandardErrorTheJournals())
{
    ::openlog("Orvello", LOG_PID, LOG_USER);
}

void Syslog::write(std::string_view message)
{
    const std::string text(message);
    ::syslog(LOG_NOTICE, "%s", text.c_str());
    if (!m_isStandardErrorTheSame)
        m_standardError.write(text + '\n');
}

} // namespace Orvello
