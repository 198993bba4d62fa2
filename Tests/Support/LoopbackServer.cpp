#include "Tests/Support/LoopbackServer.h"

#include <QSslServer>
#include <QTcpSocket>

namespace Orvello::Testing {

using namespace Qt::StringLiterals;

LoopbackServer::LoopbackServer()
    : m_scheme(u"http"_s)
    , m_server(std::make_unique<QTcpServer>())
{
    start();
}

LoopbackServer::LoopbackServer(const QSslConfiguration& tls)
    : m_scheme(u"https"_s)
{
    auto server = std::make_unique<QSslServer>();
    server->setSslConfiguration(tls);
    m_server = std::move(server);
    start();
}

LoopbackServer::~LoopbackServer() = default;

void LoopbackServer::start()
{
    QObject::connect(m_server.get(), &QTcpServer::pendingConnectionAvailable, m_server.get(),
        [this] { accept(); });
    if (!m_server->listen(QHostAddress::LocalHost))
        qFatal("The test's server cannot listen: %s", qPrintable(m_server->errorString()));
}

QUrl LoopbackServer::url(const QString& path) const
{
    QUrl url;
    url.setScheme(m_scheme);
    url.setHost(u"127.0.0.1"_s);
    url.setPort(m_server->serverPort());
    url.setPath(path);
    return url;
}

void LoopbackServer::serve(const QString& path, const QByteArray& document)
{
    serveRaw(path,
        "HTTP/1.1 200 OK\r\nConnection: close\r\nContent-Type: application/xml\r\nContent-Length: "
            + QByteArray::number(document.size()) + "\r\n\r\n" + document);
}

void LoopbackServer::serveRaw(const QString& path, const QByteArray& bytes, bool closes)
{
    m_answers.insert(path.toLatin1(), { bytes, closes });
}

void LoopbackServer::redirect(const QString& path, const QUrl& target)
{
    serveRaw(path,
        "HTTP/1.1 302 Found\r\nContent-Length: 0\r\nLocation: " + target.toEncoded() + "\r\n\r\n",
        false);
}

void LoopbackServer::accept()
{
    while (QTcpSocket* const socket = m_server->nextPendingConnection()) {
        QObject::connect(
            socket, &QTcpSocket::readyRead, m_server.get(), [this, socket] { answer(*socket); });
        QObject::connect(socket, &QTcpSocket::disconnected, socket, &QTcpSocket::deleteLater);
        answer(*socket); // What came before anybody listened.
    }
}

void LoopbackServer::answer(QTcpSocket& socket)
{
    const QByteArray head = socket.peek(100'000);
    if (!head.contains("\r\n\r\n"))
        return;
    socket.readAll();
    m_requests.append(head);
    const Answer answer = m_answers.value(head.split(' ').value(1));
    socket.write(answer.bytes);
    if (answer.closes)
        socket.disconnectFromHost();
}

} // namespace Orvello::Testing
