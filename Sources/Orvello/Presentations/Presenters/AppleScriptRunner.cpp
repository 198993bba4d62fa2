#include "Orvello/Presentations/Presenters/AppleScriptRunner.h"

#include "Orvello/Platform/Early/ChildProcess.h"

#include <utility>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

/// The text, or an empty one when any byte of it is not UTF-8.
QString decodedOrEmpty(const QByteArray& bytes)
{
    return bytes.isValidUtf8() ? QString::fromUtf8(bytes) : QString();
}

} // namespace

QString AppleScriptRunner::systemProgram() { return u"/usr/bin/osascript"_s; }

AppleScriptRunner::AppleScriptRunner(ChildProcess& process, QString program)
    : m_process(process)
    , m_program(std::move(program))
{
}

void AppleScriptRunner::run(const QString& source, ScriptCompletion completion) const
{
    const auto complete = [completion = std::move(completion)](const ChildProcessOutcome& outcome) {
        if (!outcome.isLaunched) {
            completion({ ScriptResult::notStarted, {}, outcome.launchError });
            return;
        }
        completion({ outcome.status, decodedOrEmpty(outcome.standardOutput),
            decodedOrEmpty(outcome.standardError) });
    };
    m_process.run(m_program, { u"-e"_s, source }, complete);
}

} // namespace Orvello
