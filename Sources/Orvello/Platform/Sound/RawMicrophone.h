#pragma once

#include "Orvello/Foundation/Result.h"
#include "Orvello/Platform/Sound/SampleListener.h"

#include <QString>

#include <variant>

namespace Orvello {

/// The default input device, unprocessed and mono. Main thread.
class RawMicrophone {
public:
    virtual ~RawMicrophone() = default;

    /// The input device's rate in hertz; 0 when there is no usable device.
    virtual double sampleRate() = 0;

    /// Lets `listener` hear about `blockFrames` samples at a time once the microphone runs. It must
    /// live until removeTap() returns. At most one tap.
    virtual void installTap(int blockFrames, SampleListener& listener) = 0;

    /// When it returns, no onSamples() is running and none will follow. Without a tap, nothing.
    virtual void removeTap() = 0;

    /// Fails with the system's description of why.
    virtual Result<std::monostate, QString> start() = 0;

    virtual void stop() = 0;
};

} // namespace Orvello
