#pragma once

#include <optional>
#include <string>
#include <vector>

namespace Orvello::Testing {

/// How a child program ended, and what it wrote.
struct ChildEnd {
    std::optional<int> exitStatus;
    std::optional<int> signal;
    std::string standardOutput;
    std::string standardError;
};

/// Runs CrashProgram to its end. A sanitizer in it leaves the fatal signals alone.
[[nodiscard]] ChildEnd runCrashProgram(const std::vector<std::string>& arguments);

} // namespace Orvello::Testing
