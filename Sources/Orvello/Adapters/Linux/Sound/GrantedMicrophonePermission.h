#pragma once

#include "Orvello/Platform/Sound/MicrophonePermission.h"

namespace Orvello {

/// Linux knows no permission per program: the sound server decides when it is asked for sound.
class GrantedMicrophonePermission final : public MicrophonePermission {
public:
    Status status() const override { return Status::Authorized; }
    void request(std::function<void(bool)> completion) override { completion(true); }
};

} // namespace Orvello
