#pragma once

#include <cstdint>
#include <memory>
#include <span>

namespace Orvello {

/// One voice-processing unit: the default microphone, mono at 48 kHz, with what this computer plays
/// removed. Nothing but a new unit can be configured; then it is initialised, started, stopped,
/// uninitialised and destroyed. Main thread, but for the listener and render().
class VoiceProcessingUnit {
public:
    /// 0 is success, everything else the system's own error number.
    using Status = std::int32_t;

    enum class Setting {
        EnableInput,
        EnableOutput,
        MicrophoneFormat, ///< 48 kHz, one channel of packed 32-bit floats.
        RenderFormat, ///< The same for what the unit plays.
        InputCallback, ///< The listener given at instantiation.
        RenderCallback, ///< Plays silence.
        OtherAudioDucking, ///< Off as far as the system allows: other programs keep their volume.
    };

    class Listener {
    public:
        /// The unit's audio thread: no lock, no memory, no log. That many samples wait to be
        /// fetched from the unit by render().
        virtual void onInput(VoiceProcessingUnit& unit, std::uint32_t frames) noexcept = 0;

    protected:
        ~Listener() = default;
    };

    virtual ~VoiceProcessingUnit() = default;

    virtual Status configure(Setting setting) = 0;
    virtual Status initialize() = 0;
    virtual Status start() = 0;

    /// Fetches the samples that onInput() announced; only from inside it.
    virtual Status render(std::span<float> samples) noexcept = 0;

    /// When it returns, no onInput() is running and none will follow.
    virtual void stop() = 0;

    virtual void uninitialize() = 0;
};

/// The system's supply of voice-processing units. Main thread.
class VoiceProcessing {
public:
    struct Instantiation {
        VoiceProcessingUnit::Status status = 0;
        std::unique_ptr<VoiceProcessingUnit> unit; ///< None when it failed.
    };

    virtual ~VoiceProcessing() = default;

    virtual bool isAvailable() = 0;

    /// `listener` must outlive the unit.
    virtual Instantiation instantiate(VoiceProcessingUnit::Listener& listener) = 0;
};

} // namespace Orvello
