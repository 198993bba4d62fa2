#pragma once

#include <QString>

#include <functional>

namespace Orvello {

/// What a script printed and how it ended.
struct ScriptResult {
    static constexpr qint32 notStarted = -1;
    static constexpr qint32 timedOut = -2;

    qint32 status = 0; ///< 0 for success; one of the above when there was no answer.
    QString standardOutput; ///< Empty when it is not UTF-8.
    QString standardError; ///< Empty when it is not UTF-8; the launch error if not started.
};

using ScriptCompletion = std::function<void(const ScriptResult&)>;

} // namespace Orvello
