#pragma once

#include "Orvello/Platform/Early/RunningInstance.h"

#include <QLockFile>
#include <QSocketNotifier>

#include <memory>
#include <optional>
#include <vector>

namespace Orvello {

/// One process for each user: the one that has a lock file, and listens to later starts on a
/// socket beside it. POSIX sockets, because Qt's want the application object.
class SocketInstance final : public RunningInstance {
public:
    /// How long a start waits for the answer of one that may just be starting, in milliseconds.
    static constexpr int patience = 10'000;

    explicit SocketInstance(const QString& folder); ///< The user's own. It need not exist.
    ~SocketInstance() override;
    SocketInstance(const SocketInstance&) = delete;
    SocketInstance& operator=(const SocketInstance&) = delete;

    Outcome claim(const ProgramStart& start) override;
    void listen(Handlers handlers) override;
    void release() override;

private:
    class Caller;

    void openSocket();
    std::optional<QStringList> handOver(const ProgramStart& start) const;
    void acceptCaller();

    const QString m_folder;
    const QByteArray m_path; ///< Of the socket.
    QLockFile m_lock;
    int m_socket = -1;
    Handlers m_handlers;
    std::unique_ptr<QSocketNotifier> m_notifier;
    std::vector<std::shared_ptr<Caller>> m_callers; ///< Those that have not said all.
};

} // namespace Orvello
