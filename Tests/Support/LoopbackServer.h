#pragma once

#include <QByteArray>
#include <QHash>
#include <QSslConfiguration>
#include <QStringList>
#include <QTcpServer>
#include <QUrl>

#include <memory>

namespace Orvello::Testing {

/// A web server on this machine, on the test's own event loop, that answers each path with the
/// bytes it was given, and then closes the connection unless told otherwise.
class LoopbackServer {
public:
    LoopbackServer(); ///< Plain.
    explicit LoopbackServer(const QSslConfiguration& tls);
    ~LoopbackServer();

    QUrl url(const QString& path) const;

    /// Answers `path` with a document and status 200.
    void serve(const QString& path, const QByteArray& document);
    /// Answers `path` with exactly these bytes, head included.
    void serveRaw(const QString& path, const QByteArray& bytes, bool closes = true);
    void redirect(const QString& path, const QUrl& target);

    /// The heads of the requests so far.
    const QList<QByteArray>& requests() const { return m_requests; }

private:
    struct Answer {
        QByteArray bytes;
        bool closes = true;
    };

    void start();
    void accept();
    void answer(QTcpSocket& socket);

    QString m_scheme;
    std::unique_ptr<QTcpServer> m_server;
    QHash<QByteArray, Answer> m_answers;
    QList<QByteArray> m_requests;
};

} // namespace Orvello::Testing
