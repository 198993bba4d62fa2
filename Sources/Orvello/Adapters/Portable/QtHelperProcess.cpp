#include "Orvello/Adapters/Portable/QtHelperProcess.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <chrono>
#include <utility>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

/// How long a helper has to end by itself, which includes its own good-byes.
constexpr int goodbyeMilliseconds = 5000;
constexpr int lastGoodbyeMilliseconds = 1500; ///< The same when this program ends.
constexpr int killMilliseconds = 1000;

ScriptResult parsedAnswer(const QJsonObject& answer)
{
    return { answer["status"_L1].toInt(ScriptResult::notStarted), answer["output"_L1].toString(),
        answer["error"_L1].toString() };
}

} // namespace

QtHelperProcess::QtHelperProcess(QString program, QStringList arguments, QObject* parent)
    : QObject(parent)
    , m_program(std::move(program))
    , m_arguments(std::move(arguments))
{
    m_limit.setSingleShot(true);
    connect(&m_limit, &QTimer::timeout, this, &QtHelperProcess::timeOut);
}

QtHelperProcess::~QtHelperProcess()
{
    const auto processes = findChildren<QProcess*>();
    for (QProcess* process : processes) {
        process->disconnect();
        process->closeWriteChannel();
    }
    for (QProcess* process : processes) {
        if (process->state() == QProcess::NotRunning
            || process->waitForFinished(lastGoodbyeMilliseconds))
            continue;
        process->kill();
        process->waitForFinished(killMilliseconds);
    }
}

void QtHelperProcess::ask(const QString& question, double seconds, ScriptCompletion completion)
{
    m_waiting.push_back({ ++m_lastNumber, seconds, std::move(completion) });
    if (!m_process)
        start();
    if (m_process)
        m_process->write(QByteArray::number(m_lastNumber) + ' ' + question.toUtf8() + '\n');
    if (m_waiting.size() == 1)
        watchFirst();
}

void QtHelperProcess::start()
{
    m_process = new QProcess(this);
    m_process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    connect(m_process, &QProcess::readyReadStandardOutput, this, &QtHelperProcess::readAnswers);
    const auto conclude = [this] {
        QProcess* process = std::exchange(m_process, nullptr);
        process->deleteLater();
        failAll({ ScriptResult::notStarted, {}, process->errorString() });
    };
    connect(m_process, &QProcess::finished, this, conclude);
    connect(m_process, &QProcess::errorOccurred, this, [conclude](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            conclude();
    });
    m_process->start(m_program, m_arguments);
}

void QtHelperProcess::end()
{
    QProcess* process = std::exchange(m_process, nullptr);
    if (!process)
        return;
    process->disconnect(this);
    connect(process, &QProcess::finished, process, &QObject::deleteLater);
    process->closeWriteChannel();
    QTimer::singleShot(goodbyeMilliseconds, process, &QProcess::kill);
    failAll({ ScriptResult::notStarted, {}, {} });
}

void QtHelperProcess::readAnswers()
{
    while (m_process && m_process->canReadLine())
        answer(m_process->readLine());
}

void QtHelperProcess::answer(const QByteArray& line)
{
    const QJsonObject object = QJsonDocument::fromJson(line).object();
    if (m_waiting.empty()
        || object["id"_L1].toString() != QString::number(m_waiting.front().number))
        return;
    const ScriptCompletion completion = std::move(m_waiting.front().completion);
    m_waiting.pop_front();
    watchFirst();
    completion(parsedAnswer(object));
}

void QtHelperProcess::watchFirst()
{
    if (m_waiting.empty())
        m_limit.stop();
    else
        m_limit.start(std::chrono::duration_cast<std::chrono::milliseconds>(
            std::chrono::duration<double>(m_waiting.front().seconds)));
}

/// A helper that does not answer may never do so, or answer later what was not asked any more.
void QtHelperProcess::timeOut()
{
    failAll({ ScriptResult::timedOut, {}, {} });
    end();
}

void QtHelperProcess::failAll(const ScriptResult& result)
{
    m_limit.stop();
    // Queued, because a launch may fail from inside ask().
    const auto fail = [failed = std::exchange(m_waiting, {}), result] {
        for (const Question& question : failed)
            question.completion(result);
    };
    QMetaObject::invokeMethod(this, fail, Qt::QueuedConnection);
}

} // namespace Orvello
