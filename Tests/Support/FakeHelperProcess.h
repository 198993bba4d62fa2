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
        double seconds = 0.0;
        ScriptCompletion completion;
    };

    void ask(const QString& question, double seconds, ScriptCompletion completion) override
    {
        questions.append({ question, seconds, std::move(completion) });
    }
    void end() override { ++ends; }

    QList<Question> questions;
    int ends = 0; ///< How often the program was let go.
};

} // namespace Orvello::Testing
