#pragma once

#include "Orvello/Platform/Sound/RawMicrophone.h"

#include <memory>

namespace Orvello {

class HalMicrophones;

/// A tap on the input node of an audio engine. The tap runs off the main thread.
class EngineMicrophone final : public RawMicrophone {
public:
    explicit EngineMicrophone(const HalMicrophones& microphones); ///< Must outlive this.
    ~EngineMicrophone() override;

    double sampleRate() override;
    void installTap(int blockFrames, SampleListener& listener) override;
    void removeTap() override;
    Result<std::monostate, QString> start() override;
    void stop() override;

    /// A microphone was chosen, came or went. An engine that has another one is made anew; one that
    /// stands still for want of any, and so does not notice, is started again.
    void onDeviceChanged();

private:
    struct Engine; // Keeps AVFAudio out of this header.
    std::shared_ptr<Engine> m_engine; ///< Shared only while the main thread reacts to a change.
};

} // namespace Orvello
