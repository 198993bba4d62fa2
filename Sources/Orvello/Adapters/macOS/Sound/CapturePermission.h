#pragma once

#include "Orvello/Platform/Sound/MicrophonePermission.h"

namespace Orvello {

/// The user's decision about the microphone in System Settings, Privacy & Security.
class CapturePermission final : public MicrophonePermission {
public:
    Status status() const override;
    void request(std::function<void(bool isGranted)> completion) override;
};

} // namespace Orvello
