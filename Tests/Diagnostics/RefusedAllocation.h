#pragma once

namespace Orvello::Testing {

/// The exit status of a program that allocated although it was refused.
constexpr int allocatedAlthoughRefused = 99;

/// From now on every allocation ends the program, where the C library lets us see them.
void refuseAllocation();

} // namespace Orvello::Testing
