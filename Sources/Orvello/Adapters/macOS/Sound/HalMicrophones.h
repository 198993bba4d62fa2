#pragma once

#include "Orvello/Foundation/WakeUp.h"
#include "Orvello/Platform/Sound/Microphones.h"

#include <cstdint>
#include <functional>
#include <utility>

namespace Orvello {

/// The input devices, as the audio hardware layer knows them.
class HalMicrophones final : public Microphones {
public:
    using DeviceID = std::uint32_t; ///< An AudioObjectID. Another one whenever it is connected.

    HalMicrophones();
    ~HalMicrophones() override;
    HalMicrophones(const HalMicrophones&) = delete;
    HalMicrophones& operator=(const HalMicrophones&) = delete;

    State state() override;
    void choose(const QString& identifier) override;
    void setObserver(std::function<void()> changed) override { m_observer = std::move(changed); }

    /// The device that was chosen, or 0: none was, or it is not connected.
    DeviceID chosenDevice() const;

    /// The system's choice, or 0.
    static DeviceID defaultDevice();

    /// `changed` is called on the main loop when one of these two is another one.
    void setDeviceObserver(std::function<void()> changed) { m_deviceObserver = std::move(changed); }

private:
    struct Device {
        DeviceID device;
        Microphone microphone;
    };

    static QList<Device> connectedDevices();
    void reconsider();

    QString m_chosen; ///< An identifier; empty for the system's choice.
    QList<Device> m_devices; ///< Those that can be chosen.
    std::pair<DeviceID, DeviceID> m_told {}; ///< The chosen and the default device.
    std::function<void()> m_observer;
    std::function<void()> m_deviceObserver;
    WakeUp m_changed;
};

} // namespace Orvello
