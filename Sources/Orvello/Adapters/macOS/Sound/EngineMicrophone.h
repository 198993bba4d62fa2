#pragma once

#include "Orvello/Platform/Sound/RawMicrophone.h"

#include <memory>

namespace Orvello {

/// A tap on the input node of an audio engine. The tap runs off the main thread.
class EngineMicrophone final : public RawMicrophone {
public:
    EngineMicrophone();
    ~EngineMicrophone() override;

    double sampleRate() override;
    void installTap(int blockFrames, SampleListener& listener) override;
    void removeTap() override;
    Result<std::monostate, QString> start() override;
    void stop() override;

    /// Another device is the default one. An engine that stands still for want of one, and so does
    /// not notice, is started again.
    void onDeviceChanged();

private:
    struct Engine; // Keeps AVFAudio out of this header.
    std::shared_ptr<Engine> m_engine; ///< Shared only while the main thread reacts to a change.
};

} // namespace Orvello
