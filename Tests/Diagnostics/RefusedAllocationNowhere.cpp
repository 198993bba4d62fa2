#include "Tests/Diagnostics/RefusedAllocation.h"

namespace Orvello::Testing {

void refuseAllocation() { }

} // namespace Orvello::Testing
