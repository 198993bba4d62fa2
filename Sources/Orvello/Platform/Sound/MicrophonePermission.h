#pragma once

#include <functional>

namespace Orvello {

/// Whether the user lets this program use the microphone. Main thread.
class MicrophonePermission {
public:
    enum class Status { NotDetermined, Authorized, Denied, Restricted };

    virtual ~MicrophonePermission() = default;

    virtual Status status() const = 0;

    /// Asks the user. `completion` is called once, with what they decided, on any thread.
    virtual void request(std::function<void(bool isGranted)> completion) = 0;
};

} // namespace Orvello
