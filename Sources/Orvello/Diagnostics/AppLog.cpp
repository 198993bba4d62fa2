#include "Orvello/Diagnostics/AppLog.h"
namespace Orvello::AppLog {
void writeArguments(std::string_view, std::span<const LogArgument>) { }
} // namespace Orvello::AppLog
