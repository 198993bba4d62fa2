#pragma once

#include <string_view>

namespace Orvello {

/// The operating system's own log. Any thread; never fails visibly.
class SystemLog {
public:
    virtual ~SystemLog() = default;

    /// Sends one message (UTF-8, no line feed at the end) as it stands, never as a format.
    virtual void write(std::string_view message) = 0;
};

} // namespace Orvello
