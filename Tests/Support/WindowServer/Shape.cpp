#include "Tests/Support/WindowServerStandIn.h"

using namespace Orvello::Testing::WindowServerStandIn;

extern "C" std::int32_t CGSSetWindowCaptureExcludeShape(
    std::uint32_t connectionID, std::uint32_t window, const void* region)
{
    const auto* rect = static_cast<const Rect*>(region);
    state().shapeCalls.push_back({ connectionID, window, rect != nullptr, rect ? *rect : Rect {} });
    return state().shapeError;
}
