#pragma once

#include "Orvello/Platform/Desktop/HelperProcess.h"

#include <QObject>
#include <QProcess>
#include <QStringList>

#include <deque>

namespace Orvello {

/// Talks to a helper program that reads one question per line and answers each with one line, a
/// JSON object with the members "status", "output" and "error". It ends when its input ends.
class QtHelperProcess final : public QObject, public HelperProcess {
    Q_OBJECT

public:
    /// Nothing is started before the first question.
    QtHelperProcess(QString program, QStringList arguments, QObject* parent = nullptr);
    ~QtHelperProcess() override;

    void ask(const QString& question, ScriptCompletion completion) override;

private:
    void readAnswers();
    void answer(const ScriptResult& result);
    void failAll();

    const QString m_program;
    const QStringList m_arguments;
    QProcess m_process;
    std::deque<ScriptCompletion> m_waiting;
};

} // namespace Orvello
