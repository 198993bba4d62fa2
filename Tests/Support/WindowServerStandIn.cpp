#include "Tests/Support/WindowServerStandIn.h"

namespace Orvello::Testing::WindowServerStandIn {

State& state()
{
    static State instance;
    return instance;
}

namespace {

[[maybe_unused]] const void* made(const Rect& rect, const char* maker)
{
    ++state().regionsMade;
    state().regionMakersUsed.emplace_back(maker);
    return new Rect(rect);
}

} // namespace
} // namespace Orvello::Testing::WindowServerStandIn

using namespace Orvello::Testing::WindowServerStandIn;

// The names are the system's, looked up in the global scope.
extern "C" {

#ifdef WITH_CONNECTION
__attribute__((visibility("default"))) std::uint32_t CGSMainConnectionID()
{
    return connection;
}
#endif

#ifdef WITH_SHAPE
__attribute__((visibility("default"))) std::int32_t CGSSetWindowCaptureExcludeShape(
    std::uint32_t connectionID, std::uint32_t window, const void* region)
{
    const auto* rect = static_cast<const Rect*>(region);
    state().shapeCalls.push_back({ connectionID, window, rect != nullptr, rect ? *rect : Rect {} });
    return state().shapeError;
}
#endif

#ifdef WITH_REGION_CREATE
__attribute__((visibility("default"))) const void* CGRegionCreateWithRect(Rect rect)
{
    return state().refusesRegions ? nullptr : made(rect, "create");
}
#endif

#ifdef WITH_REGION_NEW
__attribute__((visibility("default"))) std::int32_t CGSNewRegionWithRect(
    const Rect* rect, const void** region)
{
    if (state().regionError == 0)
        *region = made(*rect, "new");
    return state().regionError;
}
#endif

__attribute__((visibility("default"))) void CFRelease(const void* object)
{
    ++state().regionsReleased;
    delete static_cast<const Rect*>(object);
}
}
