#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// Stand-ins for the window server's private calls, found by name in the test program as the real
/// ones are in the system. Each lies in a file of its own in WindowServer/, so that a program can
/// have any subset of them.
namespace Orvello::Testing::WindowServerStandIn {

struct Rect {
    double x, y, width, height;
    friend bool operator==(const Rect&, const Rect&) = default;
};

/// One call of the exclude-shape entry point.
struct ShapeCall {
    std::uint32_t connection;
    std::uint32_t window;
    bool hasRegion;
    Rect rect; ///< Of the region, if there is one.
    friend bool operator==(const ShapeCall&, const ShapeCall&) = default;
};

struct State {
    std::vector<ShapeCall> shapeCalls;
    std::int32_t shapeError = 0; ///< What the exclude-shape entry point answers.
    std::int32_t regionError = 0; ///< What the fallback region maker answers.
    bool refusesRegions = false; ///< The preferred region maker answers null.
    int regionsMade = 0;
    int regionsReleased = 0;
    std::vector<std::string> regionMakersUsed;
};

State& state();

/// A new region, counted.
const void* made(const Rect& rect, const char* maker);

inline constexpr std::uint32_t connection = 7;

} // namespace Orvello::Testing::WindowServerStandIn
