#pragma once

#include "Orvello/Platform/Early/SystemLog.h"

namespace Orvello {

/// syslog(3) under the name "Orvello", and standard error.
class Syslog final : public SystemLog {
public:
    Syslog();
    void write(std::string_view message) override;
};

} // namespace Orvello
