#include "Orvello/Presentations/Presenters/AppleScriptRunner.h"

#include "Orvello/Foundation/Utf8.h"
#include "Orvello/Platform/Early/ChildProcess.h"

#include <utility>

namespace Orvello {

using namespace Qt::StringLiterals;

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
        completion({ outcome.status, Utf8::decodedOrEmpty(outcome.standardOutput),
            Utf8::decodedOrEmpty(outcome.standardError) });
    };
    m_process.run(m_program, { u"-e"_s, source }, complete);
}

} // namespace Orvello
