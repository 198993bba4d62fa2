#include "Orvello/Adapters/Portable/QtHelperProcess.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <utility>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

constexpr int goodbyeMilliseconds = 200; ///< How long a helper has to end by itself.
constexpr int killMilliseconds = 1000;

ScriptResult parsedAnswer(const QByteArray& line)
{
    const QJsonObject answer = QJsonDocument::fromJson(line).object();
    return { answer["status"_L1].toInt(ScriptResult::notStarted), answer["output"_L1].toString(),
        answer["error"_L1].toString() };
}

} // namespace

QtHelperProcess::QtHelperProcess(QString program, QStringList arguments, QObject* parent)
    : QObject(parent)
    , m_program(std::move(program))
    , m_arguments(std::move(arguments))
{
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    connect(&m_process, &QProcess::readyReadStandardOutput, this, &QtHelperProcess::readAnswers);
    connect(&m_process, &QProcess::finished, this, &QtHelperProcess::failAll);
    connect(&m_process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            failAll();
    });
}

QtHelperProcess::~QtHelperProcess()
{
    m_process.disconnect();
    m_process.closeWriteChannel();
    if (m_process.state() == QProcess::NotRunning || m_process.waitForFinished(goodbyeMilliseconds))
        return;
    m_process.kill();
    m_process.waitForFinished(killMilliseconds);
}

void QtHelperProcess::ask(const QString& question, ScriptCompletion completion)
{
    m_waiting.push_back(std::move(completion));
    if (m_process.state() == QProcess::NotRunning)
        m_process.start(m_program, m_arguments);
    if (m_process.state() != QProcess::NotRunning)
        m_process.write(question.toUtf8() + '\n');
}

void QtHelperProcess::readAnswers()
{
    while (m_process.canReadLine())
        answer(parsedAnswer(m_process.readLine()));
}

void QtHelperProcess::answer(const ScriptResult& result)
{
    if (m_waiting.empty())
        return;
    const ScriptCompletion completion = std::move(m_waiting.front());
    m_waiting.pop_front();
    completion(result);
}

void QtHelperProcess::failAll()
{
    // Queued, because a launch may fail from inside ask().
    const auto fail = [failed = std::exchange(m_waiting, {}), error = m_process.errorString()] {
        for (const ScriptCompletion& completion : failed)
            completion({ ScriptResult::notStarted, {}, error });
    };
    QMetaObject::invokeMethod(this, fail, Qt::QueuedConnection);
}

} // namespace Orvello
