#pragma once

#include "Orvello/Platform/Early/RunningInstance.h"

#include <QDBusConnection>
#include <QObject>

#include <optional>
#include <vector>

namespace Orvello {

/// One process for each session bus: the one that owns the program's name there. Without a bus
/// every process runs.
class BusInstance final : public QObject, public RunningInstance {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "app.orvello.Orvello")

public:
    BusInstance();
    explicit BusInstance(const QString& busAddress); ///< For tests.
    ~BusInstance() override;

    Claim claim(const QStringList& arguments) override;
    void listen(Handlers handlers) override;

public Q_SLOTS:
    void Start(const QStringList& arguments); ///< What a later start calls over the bus.

private:
    bool claimName();
    bool handOver(const QStringList& arguments);

    const QString m_connectionName;
    QDBusConnection m_bus;
    std::optional<Handlers> m_handlers;
    std::vector<QStringList> m_earlyStarts; ///< Before anybody listened.
};

} // namespace Orvello
