#pragma once

namespace Orvello {

/// Who else uses the microphone. Main thread.
class MicActivity {
public:
    virtual ~MicActivity() = default;

    /// True when a process other than this one is capturing audio input right now; also false when
    /// the system does not say.
    virtual bool otherProcessCapturingInput() = 0;
};

} // namespace Orvello
