#pragma once

#include "Orvello/Prompting/Panel/CaptureExclusion.h"

#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

/// A stand-in for the window server's private calls, of which any may be missing.
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
    Rect rect; ///< The region's rectangle, if there is a region.
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

inline constexpr std::uint32_t connection = 7;

/// Tells which of the calls can be found.
struct Calls {
    bool connection = true;
    bool shape = true;
    bool regionCreate = true;
    bool regionNew = true;
};

CaptureExclusion::LookUp lookUp(Calls present = {});

/// For the names of test cases.
void PrintTo(const Calls& present, std::ostream* stream);

} // namespace Orvello::Testing::WindowServerStandIn
