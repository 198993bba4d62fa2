#pragma once

#include "Orvello/Platform/Early/SystemLog.h"

namespace Orvello {

/// NSLog: the unified log, and standard error where it is a terminal.
class UnifiedLog final : public SystemLog {
public:
    void write(std::string_view message) override;
};

} // namespace Orvello
