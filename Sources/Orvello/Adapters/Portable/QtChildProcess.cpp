#include "Orvello/Adapters/Portable/QtChildProcess.h"

#include <QProcess>

#include <memory>
#include <utility>

namespace Orvello {

namespace {

/// How long the destructor waits for a killed process, which normally ends at once.
constexpr int killMilliseconds = 1000;

} // namespace

QtChildProcess::QtChildProcess(QObject* parent)
    : QObject(parent)
{
}

QtChildProcess::~QtChildProcess()
{
    const auto processes = findChildren<QProcess*>();
    for (QProcess* process : processes) {
        process->disconnect();
        process->kill();
    }
    for (QProcess* process : processes)
        process->waitForFinished(killMilliseconds);
}

void QtChildProcess::run(
    const QString& program, const QStringList& arguments, Completion completion)
{
    auto* process = new QProcess(this);
    process->setStandardInputFile(QProcess::nullDevice());

    const auto shared = std::make_shared<Completion>(std::move(completion));
    const auto conclude = [process, shared] {
        const Completion complete = std::exchange(*shared, nullptr);
        if (!complete)
            return;
        process->deleteLater();
        complete(outcomeOf(*process));
    };
    // Queued: a launch may fail from inside start().
    connect(process, &QProcess::finished, this, conclude, Qt::QueuedConnection);
    connect(
        process, &QProcess::errorOccurred, this,
        [conclude](QProcess::ProcessError error) {
            if (error == QProcess::FailedToStart)
                conclude();
        },
        Qt::QueuedConnection);
    process->start(program, arguments);
}

ChildProcessOutcome QtChildProcess::outcomeOf(QProcess& process)
{
    ChildProcessOutcome outcome;
    outcome.isLaunched = process.error() != QProcess::FailedToStart;
    if (!outcome.isLaunched) {
        outcome.launchError = process.errorString();
        return outcome;
    }
    outcome.status = process.exitCode(); // The signal's number for a process that crashed.
    outcome.standardOutput = process.readAllStandardOutput();
    outcome.standardError = process.readAllStandardError();
    return outcome;
}

} // namespace Orvello
