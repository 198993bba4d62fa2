#include "Benchmarks/PlainSumOfSquares.h"

namespace OrvelloBenchmarks {

float plainSumOfSquares(const float* samples, std::size_t count)
{
    float sum = 0;
    for (std::size_t index = 0; index < count; ++index)
        sum += samples[index] * samples[index];
    return sum;
}

} // namespace OrvelloBenchmarks
