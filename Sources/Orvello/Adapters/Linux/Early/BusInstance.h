#pragma once

#include "Orvello/Platform/Early/RunningInstance.h"

#include <QDBusConnection>
#include <QDBusContext>
#include <QLockFile>
#include <QObject>

#include <optional>
#include <vector>

namespace Orvello {

/// One process for each X display of a session bus: the one that owns the program's name for the
/// display there, and a lock file for starts that do not see the bus.
class BusInstance final : public QObject, public RunningInstance, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "app.orvello.Orvello")

public:
    struct Place {
        QString display; ///< As in DISPLAY.
        QString lockFolder; ///< Need not exist.
        QString busAddress; ///< Empty for the session's bus.
    };

    explicit BusInstance(const Place& place);
    ~BusInstance() override;

    /// The name on the bus of the process that has the display.
    static QString nameOn(const QString& display);

    Outcome claim(const ProgramStart& start) override;
    void listen(Handlers handlers) override;
    void release() override;

public Q_SLOTS:
    /// What a later start calls over the bus. Returns what could not be done.
    QStringList Start(
        const QStringList& arguments, const QString& directory, const QVariantMap& environment);

private:
    struct EarlyStart {
        ProgramStart start;
        Answer answer;
    };

    bool claimName();
    std::optional<QStringList> handOver(const ProgramStart& start);
    Outcome claimLock();

    const QString m_connectionName;
    const QString m_name;
    QDBusConnection m_bus;
    const QString m_lockFolder;
    QLockFile m_lock;
    std::optional<Handlers> m_handlers;
    std::vector<EarlyStart> m_earlyStarts; ///< Starts that arrived before anybody listened.
};

} // namespace Orvello
