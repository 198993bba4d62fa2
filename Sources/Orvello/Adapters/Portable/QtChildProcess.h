#pragma once

#include "Orvello/Platform/Early/ChildProcess.h"

#include <QObject>

class QProcess;

namespace Orvello {

/// Runs programs through the event loop.
class QtChildProcess final : public QObject, public ChildProcess {
    Q_OBJECT

public:
    explicit QtChildProcess(QObject* parent = nullptr);
    ~QtChildProcess() override;

    void run(const QString& program, const QStringList& arguments, Completion completion) override;

private:
    static ChildProcessOutcome outcomeOf(QProcess& process);
};

} // namespace Orvello
