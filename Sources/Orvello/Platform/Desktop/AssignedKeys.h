#pragma once

#include <QHash>
#include <QObject>
#include <QString>
#include <QVariantMap>

namespace Orvello {

/// The hot keys as the user has assigned them, on desktops that manage them. Main thread.
class AssignedKeys : public QObject { // Not final: QML derives from the types that it can create.
    Q_OBJECT
    /// Whether the desktop has a window for assigning them.
    Q_PROPERTY(bool canConfigure READ canConfigure NOTIFY canConfigureChanged FINAL)

public:
    /// What to press, in the desktop's own words, by the name of the key's purpose. Keys that the
    /// desktop leaves to the program are not in it.
    const QVariantMap& triggers() const { return m_triggers; }
    void setTriggers(const QVariantMap& triggers)
    {
        if (m_triggers == triggers)
            return;
        m_triggers = triggers;
        Q_EMIT triggersChanged();
    }

    /// Why a key does nothing.
    enum class Trouble {
        Taken, ///< Another program has it.
        Absent, ///< The keyboard lacks it.
    };
    /// By the name of the key's purpose. Keys that work are not in it.
    const QHash<QString, Trouble>& troubles() const { return m_troubles; }
    void setTroubles(const QHash<QString, Trouble>& troubles)
    {
        if (m_troubles == troubles)
            return;
        m_troubles = troubles;
        Q_EMIT troublesChanged();
    }

    bool canConfigure() const { return m_canConfigure; }
    void setCanConfigure(bool can)
    {
        if (m_canConfigure == can)
            return;
        m_canConfigure = can;
        Q_EMIT canConfigureChanged();
    }

    /// Opens the desktop's window, if it has one.
    Q_INVOKABLE void configure() { Q_EMIT configurationRequested(); }

Q_SIGNALS:
    void triggersChanged();
    void troublesChanged();
    void canConfigureChanged();
    void configurationRequested(); ///< For the part that talks to the desktop.

private:
    QVariantMap m_triggers;
    QHash<QString, Trouble> m_troubles;
    bool m_canConfigure = false;
};

} // namespace Orvello
