#include "Orvello/Adapters/Portable/SocketInstance.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>
#include <utility>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

/// A start is some words; whatever is longer does not come from this program.
constexpr qsizetype longestMessage = 1 << 20;

/// JSON on one line each: what has been read is whole once its line has ended.
QByteArray lineOf(const QJsonObject& message)
{
    return QJsonDocument(message).toJson(QJsonDocument::Compact) + '\n';
}

QByteArray lineOf(const ProgramStart& start)
{
    return lineOf({ { u"arguments"_s, QJsonArray::fromStringList(start.arguments) },
        { u"directory"_s, start.directory },
        { u"environment"_s, QJsonObject::fromVariantMap(start.environment) } });
}

QByteArray lineOf(const QStringList& refusals)
{
    return lineOf({ { u"refusals"_s, QJsonArray::fromStringList(refusals) } });
}

QStringList words(const QJsonValue& value)
{
    QStringList list;
    for (const auto word : value.toArray())
        list.append(word.toString());
    return list;
}

std::optional<QJsonObject> messageIn(const QByteArray& line)
{
    const QJsonDocument document = QJsonDocument::fromJson(line);
    return document.isObject() ? std::optional(document.object()) : std::nullopt;
}

int makeSocket()
{
    const int descriptor = ::socket(AF_UNIX, SOCK_STREAM, 0);
    if (descriptor >= 0)
        ::fcntl(descriptor, F_SETFD, FD_CLOEXEC);
    return descriptor;
}

/// Nothing where the path is too long for an address.
std::optional<sockaddr_un> addressOf(const QByteArray& path)
{
    sockaddr_un address {};
    address.sun_family = AF_UNIX;
    if (static_cast<std::size_t>(path.size()) >= sizeof address.sun_path)
        return std::nullopt;
    std::memcpy(address.sun_path, path.constData(), static_cast<std::size_t>(path.size()));
    return address;
}

/// bind(2) or connect(2).
template <typename Call>
bool reaches(Call call, int descriptor, const QByteArray& path)
{
    const std::optional<sockaddr_un> address = addressOf(path);
    return descriptor >= 0 && address
        && call(descriptor, reinterpret_cast<const sockaddr*>(&*address), sizeof *address) == 0;
}

bool isReady(int descriptor, short event, const QElapsedTimer& since)
{
    const qint64 left = SocketInstance::patience - since.elapsed();
    pollfd waiting { descriptor, event, 0 };
    return left > 0 && ::poll(&waiting, 1, static_cast<int>(left)) > 0;
}

bool writeAll(int descriptor, const QByteArray& bytes)
{
    qsizetype written = 0;
    while (written < bytes.size()) {
        const ssize_t more = ::write(descriptor, bytes.constData() + written,
            static_cast<std::size_t>(bytes.size() - written));
        if (more < 0 && errno != EINTR)
            return false;
        written += std::max<ssize_t>(more, 0);
    }
    return true;
}

/// What can be read now, appended. False at the end.
bool readMore(int descriptor, QByteArray& bytes)
{
    std::array<char, 4096> block {};
    const ssize_t count = ::read(descriptor, block.data(), block.size());
    if (count > 0)
        bytes.append(block.data(), count);
    return count > 0 || (count < 0 && (errno == EINTR || errno == EAGAIN));
}

} // namespace

/// The connection of one later start.
class SocketInstance::Caller {
public:
    explicit Caller(int descriptor)
        : m_descriptor(descriptor)
    {
        ::fcntl(descriptor, F_SETFD, FD_CLOEXEC);
        ::fcntl(descriptor, F_SETFL, ::fcntl(descriptor, F_GETFL) | O_NONBLOCK);
    }
    ~Caller()
    {
        m_notifier.reset();
        ::close(m_descriptor);
    }
    Caller(const Caller&) = delete;
    Caller& operator=(const Caller&) = delete;

    /// Calls once: with the start, or with nothing for a caller that said no such thing.
    void hear(std::function<void(const std::optional<ProgramStart>&)> heard)
    {
        m_notifier = std::make_unique<QSocketNotifier>(m_descriptor, QSocketNotifier::Read);
        QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(),
            [this, heard = std::move(heard)] {
                const bool goesOn = readMore(m_descriptor, m_said);
                const bool isWhole = m_said.endsWith('\n');
                if (goesOn && !isWhole && m_said.size() <= longestMessage)
                    return;
                m_notifier->setEnabled(false);
                const auto tell = heard; // It may destroy this.
                tell(isWhole ? start() : std::nullopt);
            });
    }

    void answer(const QStringList& refusals) { writeAll(m_descriptor, lineOf(refusals)); }

private:
    std::optional<ProgramStart> start() const
    {
        const std::optional<QJsonObject> message = messageIn(m_said);
        if (!message)
            return std::nullopt;
        return ProgramStart { words(message->value(u"arguments"_s)),
            message->value(u"directory"_s).toString(),
            message->value(u"environment"_s).toObject().toVariantMap() };
    }

    const int m_descriptor;
    QByteArray m_said;
    std::unique_ptr<QSocketNotifier> m_notifier;
};

SocketInstance::SocketInstance(const QString& folder)
    : m_folder(folder)
    , m_path(QFile::encodeName(folder + u"/running.socket"_s))
    , m_lock(folder + u"/running.lock"_s)
{
    // Only the end of its process makes a lock stale, never its age.
    m_lock.setStaleLockTime(0);
}

SocketInstance::~SocketInstance() { release(); }

RunningInstance::Outcome SocketInstance::claim(const ProgramStart& start)
{
    // Where no file can be made, nothing of the library can be written either.
    if (!QDir().mkpath(m_folder) || m_lock.tryLock()
        || m_lock.error() != QLockFile::LockFailedError) {
        if (m_lock.isLocked())
            openSocket();
        return { Claim::Granted, {} };
    }
    if (const auto refusals = handOver(start))
        return { Claim::HandedOver, *refusals };
    // It may have ended meanwhile.
    if (m_lock.tryLock()) {
        openSocket();
        return { Claim::Granted, {} };
    }
    // The words of the other edition, translated once.
    return { Claim::Unanswered,
        { QCoreApplication::translate(
            "Orvello::BusInstance", "Orvello is running already, but does not answer.") } };
}

void SocketInstance::openSocket()
{
    ::unlink(m_path.constData()); // Of a process that ended without a chance to.
    m_socket = makeSocket();
    if (reaches(&::bind, m_socket, m_path) && ::listen(m_socket, SOMAXCONN) == 0)
        return;
    ::close(m_socket); // Later starts will know by the lock, and say that there is no answer.
    m_socket = -1;
}

std::optional<QStringList> SocketInstance::handOver(const ProgramStart& start) const
{
    // The other process may end while this one writes. The program ignores the signal anyway, but
    // begins with it later.
    static_cast<void>(std::signal(SIGPIPE, SIG_IGN));
    QElapsedTimer since;
    since.start();
    const int descriptor = makeSocket();
    QByteArray answer;
    // A process that has just taken the lock may not have its socket yet.
    bool isConnected = false;
    while (!(isConnected = reaches(&::connect, descriptor, m_path)) && since.elapsed() < 1000)
        ::usleep(20'000);
    if (isConnected && writeAll(descriptor, lineOf(start))) {
        while (!answer.endsWith('\n') && answer.size() <= longestMessage
            && isReady(descriptor, POLLIN, since) && readMore(descriptor, answer)) { }
    }
    ::close(descriptor);
    const std::optional<QJsonObject> message
        = answer.endsWith('\n') ? messageIn(answer) : std::nullopt;
    return message ? std::optional(words(message->value(u"refusals"_s))) : std::nullopt;
}

void SocketInstance::listen(Handlers handlers)
{
    m_handlers = std::move(handlers);
    if (m_socket < 0)
        return;
    m_notifier = std::make_unique<QSocketNotifier>(m_socket, QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(),
        [this] { acceptCaller(); });
}

void SocketInstance::acceptCaller()
{
    const int descriptor = ::accept(m_socket, nullptr, nullptr);
    if (descriptor < 0)
        return;
    const auto caller = std::make_shared<Caller>(descriptor);
    m_callers.push_back(caller);
    caller->hear([this, self = std::weak_ptr(caller)](const std::optional<ProgramStart>& start) {
        const std::shared_ptr<Caller> heard = self.lock();
        std::erase(m_callers, heard);
        if (start)
            m_handlers.startedAgain(
                *start, [heard](const QStringList& refusals) { heard->answer(refusals); });
    });
}

void SocketInstance::release()
{
    m_notifier.reset();
    m_callers.clear();
    if (m_socket >= 0) {
        ::unlink(m_path.constData());
        ::close(m_socket);
        m_socket = -1;
    }
    m_lock.unlock();
}

} // namespace Orvello
