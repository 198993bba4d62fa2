#pragma once

#include "Orvello/Foundation/WakeUp.h"
#include "Orvello/Platform/Sound/Microphones.h"

#include <functional>
#include <utility>

namespace Orvello {

/// The default input device, as the audio hardware layer knows it. Which one it is, the user
/// decides in the system's settings, not here.
class HalMicrophones final : public Microphones {
public:
    HalMicrophones();
    ~HalMicrophones() override;
    HalMicrophones(const HalMicrophones&) = delete;
    HalMicrophones& operator=(const HalMicrophones&) = delete;

    State state() override;
    void choose(const QString&) override { }
    void setObserver(std::function<void()> changed) override { m_observer = std::move(changed); }

    /// `changed` is called on the main loop when another device is the default one, or none.
    void setDeviceObserver(std::function<void()> changed) { m_deviceObserver = std::move(changed); }

private:
    std::function<void()> m_observer;
    std::function<void()> m_deviceObserver;
    WakeUp m_deviceChanged;
};

} // namespace Orvello
