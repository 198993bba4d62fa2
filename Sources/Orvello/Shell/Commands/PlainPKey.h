#pragma once

#include <QObject>

#include <cstdint>
#include <functional>
#include <optional>

namespace Orvello {

class HotKeyCenter;
class PresentationMonitor;
class SettingsStore;

/// The P key without modifiers as a hot key, exactly while a slideshow runs and the user wants it:
/// at every other time P must type.
class PlainPKey final : public QObject {
    Q_OBJECT

public:
    /// All of them must outlive the key.
    struct Services {
        HotKeyCenter& hotKeys;
        SettingsStore& settings;
        PresentationMonitor& presentation;
    };

    PlainPKey(const Services& services, std::function<void()> pressed);
    ~PlainPKey() override;

    bool isArmed() const { return m_plainPHotKeyID.has_value(); }

private:
    void settingChanged(bool isWanted);
    void presentingChanged(bool isPresenting);
    void arm();
    void disarm();

    const Services m_services;
    const std::function<void()> m_pressed;
    std::optional<std::uint32_t> m_plainPHotKeyID; ///< Present while the key is armed.
};

} // namespace Orvello
