#pragma once

#include "Orvello/Platform/Sound/MicrophonePermission.h"

#include <utility>
#include <vector>

namespace Orvello::Testing {

/// The user decides when a test lets them.
class FakeMicrophonePermission final : public MicrophonePermission {
public:
    Status status() const override { return currentStatus; }
    void request(std::function<void(bool)> completion) override
    {
        requests.push_back(std::move(completion));
    }

    Status currentStatus = Status::Authorized;
    std::vector<std::function<void(bool)>> requests;
};

} // namespace Orvello::Testing
