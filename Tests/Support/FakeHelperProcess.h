#pragma once

#include "Orvello/Platform/Desktop/HelperProcess.h"

#include <QList>

#include <utility>

namespace Orvello::Testing {

/// Remembers the questions; a test answers them by hand.
class FakeHelperProcess final : public HelperProcess {
public:
    struct Question {
        QString text;
        ScriptCompletion completion;
    };

    void ask(const QString& question, ScriptCompletion completion) override
    {
        questions.append({ question, std::move(completion) });
    }

    QList<Question> questions;
};

} // namespace Orvello::Testing
