#include "Tests/Support/WindowServerStandIn.h"

#include <string_view>

namespace Orvello::Testing::WindowServerStandIn {

namespace {

/// A new region, counted.
const void* made(const Rect& rect, const char* maker)
{
    ++state().regionsMade;
    state().regionMakersUsed.emplace_back(maker);
    return new Rect(rect);
}

std::uint32_t mainConnectionID() { return connection; }

std::int32_t setWindowCaptureExcludeShape(
    std::uint32_t connectionID, std::uint32_t window, const void* region)
{
    const auto* rect = static_cast<const Rect*>(region);
    state().shapeCalls.push_back({ connectionID, window, rect != nullptr, rect ? *rect : Rect {} });
    return state().shapeError;
}

const void* regionCreateWithRect(Rect rect)
{
    return state().refusesRegions ? nullptr : made(rect, "create");
}

std::int32_t newRegionWithRect(const Rect* rect, const void** region)
{
    static const Rect unusable {};
    *region = state().regionError == 0 ? made(*rect, "new") : &unusable;
    return state().regionError;
}

void release(const void* object)
{
    ++state().regionsReleased;
    delete static_cast<const Rect*>(object);
}

template <typename Function>
void* address(Function* function, bool isPresent = true)
{
    return isPresent ? reinterpret_cast<void*>(function) : nullptr;
}

} // namespace

State& state()
{
    static State instance;
    return instance;
}

CaptureExclusion::LookUp lookUp(Calls present)
{
    return [present](std::string_view name) -> void* {
        if (name == "CGSMainConnectionID")
            return address(&mainConnectionID, present.connection);
        if (name == "CGSSetWindowCaptureExcludeShape")
            return address(&setWindowCaptureExcludeShape, present.shape);
        if (name == "CGRegionCreateWithRect")
            return address(&regionCreateWithRect, present.regionCreate);
        if (name == "CGSNewRegionWithRect")
            return address(&newRegionWithRect, present.regionNew);
        if (name == "CFRelease")
            return address(&release);
        return nullptr;
    };
}

void PrintTo(const Calls& present, std::ostream* stream)
{
    *stream << "With" << (present.connection ? "Connection" : "") << (present.shape ? "Shape" : "")
            << (present.regionCreate ? "RegionCreate" : "")
            << (present.regionNew ? "RegionNew" : "");
}

} // namespace Orvello::Testing::WindowServerStandIn
