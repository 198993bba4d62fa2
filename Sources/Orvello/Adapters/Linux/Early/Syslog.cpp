#include "Orvello/Adapters/Linux/Early/Syslog.h"

#include <string>
#include <syslog.h>
#include <unistd.h>

namespace Orvello {

Syslog::Syslog() { ::openlog("Orvello", LOG_PID, LOG_USER); }

void Syslog::write(std::string_view message)
{
    const std::string text(message);
    ::syslog(LOG_NOTICE, "%s", text.c_str());

    // One call for each line, so that lines from several threads stay whole.
    const std::string line = text + '\n';
    [[maybe_unused]] const ssize_t written = ::write(STDERR_FILENO, line.data(), line.size());
}

} // namespace Orvello
