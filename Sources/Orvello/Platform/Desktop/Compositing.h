#pragma once

#include <QObject>

namespace Orvello {

/// Whether the desktop mixes translucent windows with what lies under them. Where it does not,
/// every window is opaque. Main thread.
class Compositing : public QObject { // Not final: the one who finds out derives from it.
    Q_OBJECT
    Q_PROPERTY(bool isOn READ isOn NOTIFY isOnChanged FINAL)

public:
    using QObject::QObject;

    bool isOn() const { return m_isOn; }
    void setOn(bool isOn) ///< For the part that asks the desktop.
    {
        if (m_isOn == isOn)
            return;
        m_isOn = isOn;
        Q_EMIT isOnChanged();
    }

Q_SIGNALS:
    void isOnChanged();

private:
    bool m_isOn = true;
};

} // namespace Orvello
