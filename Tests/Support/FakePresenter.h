#pragma once

#include "Orvello/Presentations/Presenters/PresenterApp.h"

#include <utility>
#include <vector>

namespace Orvello::Testing {

/// A presentation application that answers when a test says so. It must outlive its row.
class FakePresenter {
public:
    explicit FakePresenter(QString displayName, QString logName, QString bundleIdentifier)
        : m_displayName(std::move(displayName))
        , m_logName(std::move(logName))
        , m_bundleIdentifier(std::move(bundleIdentifier))
    {
    }

    PresenterApp row()
    {
        const auto ask
            = [this](ScriptCompletion completion) { questions.push_back(std::move(completion)); };
        PresenterApp app { .displayName = m_displayName,
            .logName = m_logName,
            .bundleIdentifier = m_bundleIdentifier,
            .notesName = QStringLiteral("notes"),
            .permissionAdvice = QStringLiteral("permission denied"),
            .askCurrentSlide = ask,
            .askOpenDeck = ask };
        if (tellsDeck)
            app.askPresentedDeck = [this](ScriptCompletion completion) {
                deckQuestions.push_back(std::move(completion));
            };
        return app;
    }

    /// Answers the latest question.
    void answer(const QString& output) { questions.back()({ 0, output, {} }); }
    void fail(const QString& error) { questions.back()({ 1, {}, error }); }

    /// Answers the latest question after the deck that is presented.
    void answerDeck(const QString& output) { deckQuestions.back()({ 0, output, {} }); }

    std::vector<ScriptCompletion> questions;
    bool tellsDeck = false; ///< Counts for rows that are made from then on.
    std::vector<ScriptCompletion> deckQuestions;

private:
    QString m_displayName;
    QString m_logName;
    QString m_bundleIdentifier;
};

} // namespace Orvello::Testing
