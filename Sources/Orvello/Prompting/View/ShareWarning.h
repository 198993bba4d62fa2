#pragma once

#include <QObject>

namespace Orvello {

class PresentationMonitor;
class ScrollEngine;
class SettingsStore;

/// Whether the prompter warns of what Stealth Mode does, or fails to do, to a shared screen: while
/// the screen may be being shared, until the user has dismissed the warning for good.
class ShareWarning final : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool isShown READ isShown NOTIFY isShownChanged FINAL)

public:
    /// All of them must outlive it.
    ShareWarning(const PresentationMonitor& presentation, const SettingsStore& settings,
        const ScrollEngine& engine, QObject* parent = nullptr);

    bool isShown() const { return m_isShown; }

    Q_INVOKABLE void dismiss();

Q_SIGNALS:
    void isShownChanged();

private:
    bool isCalledFor() const;
    void update();

    const PresentationMonitor& m_presentation;
    const SettingsStore& m_settings;
    const ScrollEngine& m_engine;
    bool m_isDismissed = false;
    bool m_isShown;
};

} // namespace Orvello
