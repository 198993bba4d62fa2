#pragma once

#include "Orvello/Platform/Desktop/HelperProcess.h"

#include <QObject>
#include <QProcess>
#include <QStringList>
#include <QTimer>

#include <deque>

namespace Orvello {

/// Talks to a helper program that reads one question per line, a number before it, and answers each
/// with one line, a JSON object with the members "id" (that number), "status", "output" and
/// "error". A line that answers no open question is left aside. The program ends when its input
/// ends.
class QtHelperProcess final : public QObject, public HelperProcess {
    Q_OBJECT

public:
    /// Nothing is started before the first question.
    QtHelperProcess(QString program, QStringList arguments, QObject* parent = nullptr);
    ~QtHelperProcess() override;

    void ask(const QString& question, double seconds, ScriptCompletion completion) override;
    void end() override;

private:
    struct Question {
        quint64 number;
        double seconds;
        ScriptCompletion completion;
    };

    void start();
    void readAnswers();
    void answer(const QByteArray& line);
    void watchFirst();
    void timeOut();
    void failAll(const ScriptResult& result);

    const QString m_program;
    const QStringList m_arguments;
    QProcess* m_process
        = nullptr; ///< The one that is asked; those that are ending are children, too.
    std::deque<Question> m_waiting;
    quint64 m_lastNumber = 0;
    QTimer m_limit; ///< Runs while a question is open.
};

} // namespace Orvello
