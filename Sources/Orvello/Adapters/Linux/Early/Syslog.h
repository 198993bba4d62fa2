#pragma once

#include "Orvello/Diagnostics/LossyOutput.h"
#include "Orvello/Platform/Early/SystemLog.h"

#include <unistd.h>

namespace Orvello {

/// syslog(3) under the name "Orvello", and standard error.
class Syslog final : public SystemLog {
public:
    Syslog();
    void write(std::string_view message) override;

private:
    LossyOutput m_standardError { STDERR_FILENO };
    bool m_isStandardErrorTheSame;
};

} // namespace Orvello
