#pragma once

#include <memory>

namespace Orvello::Testing {

/// WebRTC's detector of voices, out of the library that removes the echo: WebRtcDetector0.cpp up to
/// its version 0.3, WebRtcDetector1.cpp for its versions 1.
class WebRtcDetector {
public:
    static constexpr int sampleRate = 48000;
    static constexpr int frameSamples = sampleRate / 100;

    WebRtcDetector();
    ~WebRtcDetector();

    /// Whether there is one in a frame, which it may change.
    bool hearsVoice(float* frame);

private:
    struct Library;
    std::unique_ptr<Library> m_library;
};

} // namespace Orvello::Testing
