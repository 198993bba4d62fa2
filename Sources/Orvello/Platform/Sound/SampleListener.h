#pragma once

#include <span>

namespace Orvello {

/// Hears the microphone.
class SampleListener {
public:
    /// The audio thread: no lock, no memory, no log. One block of mono samples, full scale 1; empty
    /// when a buffer came without samples.
    virtual void onSamples(std::span<const float> samples) noexcept = 0;

protected:
    ~SampleListener() = default;
};

} // namespace Orvello
