#pragma once

#include <cstddef>

namespace OrvelloBenchmarks {

/// One loop, left to the compiler, which may reorder the additions and so vectorises it.
float plainSumOfSquares(const float* samples, std::size_t count);

} // namespace OrvelloBenchmarks
