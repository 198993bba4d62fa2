#pragma once

#include <memory>

namespace Orvello {

/// What the echo canceller needs of WebRTC audio processing: one channel, ten milliseconds at a
/// time. Each generation of that library has an interface of its own, and an implementation of this
/// one: EchoRemoval0.cpp up to its version 0.3, EchoRemoval1.cpp for its versions 1.
class EchoRemoval {
public:
    explicit EchoRemoval(int sampleRate);
    ~EchoRemoval();

    /// Makes it ready; 0, or WebRTC's error number.
    int initialize();

    /// A frame of what is played; may be changed.
    void hearFarEnd(float* frame);

    /// Cleans a frame of the microphone in place. The search for the echo's delay begins at the
    /// given one.
    void process(float* frame, int delayMilliseconds);

private:
    struct Library;
    std::unique_ptr<Library> m_library;
};

} // namespace Orvello
