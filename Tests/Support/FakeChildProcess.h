#pragma once

#include "Orvello/Platform/Early/ChildProcess.h"

#include <QList>

#include <utility>

namespace Orvello::Testing {

/// Remembers what was started; a test ends the processes by hand, in any order.
class FakeChildProcess final : public ChildProcess {
public:
    struct Run {
        QString program;
        QStringList arguments;
        Completion completion;
    };

    void run(const QString& program, const QStringList& arguments, Completion completion) override
    {
        runs.append({ program, arguments, std::move(completion) });
    }

    /// Ends the process that was started `index`-th with this exit status and these outputs.
    void finish(qsizetype index, int status, const QByteArray& standardOutput,
        const QByteArray& standardError = {})
    {
        runs[index].completion({ true, status, standardOutput, standardError, {} });
    }
    void failToLaunch(qsizetype index, const QString& error)
    {
        runs[index].completion({ false, -1, {}, {}, error });
    }

    QList<Run> runs;
};

} // namespace Orvello::Testing
