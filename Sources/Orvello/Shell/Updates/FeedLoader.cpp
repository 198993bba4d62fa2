#include "Orvello/Shell/Updates/FeedLoader.h"

#include <QHostAddress>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>

#include <utility>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

constexpr int maximumRedirects = 5;

/// A reply may be in the middle of a signal when it is no longer needed.
void dispose(QNetworkReply* reply)
{
    reply->disconnect();
    reply->abort();
    reply->manager()->deleteLater();
}

bool isThisMachine(const QString& host)
{
    if (host == u"localhost" || host.endsWith(u".localhost"_s))
        return true;
    const QHostAddress address(host);
    bool isIPv4 = false;
    const QHostAddress asIPv4(address.toIPv4Address(&isIPv4)); // Some are written as IPv6.
    const auto isHere = [](const QHostAddress& here) {
        // What is for every address leads here, too.
        return here.isLoopback() || here == QHostAddress(QHostAddress::AnyIPv4)
            || here == QHostAddress(QHostAddress::AnyIPv6);
    };
    return isHere(address) || (isIPv4 && isHere(asIPv4));
}

} // namespace

FeedLoader::FeedLoader(TimeSource& time)
    : m_time(time)
    , m_reply(nullptr, &dispose)
{
}

FeedLoader::~FeedLoader() = default;

bool FeedLoader::isSecure(const QUrl& url)
{
    if (!url.isValid() || url.host().isEmpty())
        return false;
    return url.scheme() == u"https" || (url.scheme() == u"http" && isThisMachine(url.host()));
}

bool FeedLoader::mayLead(const QUrl& source, const QUrl& target)
{
    return isSecure(target) && (!isThisMachine(target.host()) || isThisMachine(source.host()));
}

void FeedLoader::load(const QUrl& url, const QString& userAgent, Answer answer)
{
    m_answer = std::move(answer);
    QNetworkRequest request(url);
    request.setMaximumRedirectsAllowed(maximumRedirects);
    request.setHeader(QNetworkRequest::UserAgentHeader, userAgent);
    // Compression would only let a small answer become a huge document.
    request.setRawHeader("Accept-Encoding", "identity");
    // Else Qt names the user's language and country.
    request.setRawHeader("Accept-Language", "*");
    request.setAttribute(QNetworkRequest::Http2AllowedAttribute, false); // It has headers more.

    // A network of its own, so that no cookie and no dead connection outlives the document. Its
    // redirects never lead from TLS to anything else.
    m_reply.reset((new QNetworkAccessManager(this))->get(request));
    connect(m_reply.get(), &QNetworkReply::redirected, this, [this, url](const QUrl& target) {
        if (!mayLead(url, target))
            this->answer(Failure { tr("The server redirects to an insecure address.") });
    });
    connect(m_reply.get(), &QNetworkReply::readyRead, this, [this] {
        if (m_reply->bytesAvailable() > maximumBytes)
            this->answer(Failure { tr("The document is too large.") });
    });
    connect(m_reply.get(), &QNetworkReply::finished, this, [this] { this->answer(document()); });
    m_timeout = m_time.callAfter(timeoutSeconds,
        [this] { this->answer(Failure { tr("The server did not answer in time.") }); });
}

Result<QByteArray, QString> FeedLoader::document() const
{
    constexpr int ok = 200;
    const int status = m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (m_reply->error() != QNetworkReply::NoError)
        return Failure { m_reply->errorString() };
    if (status != ok)
        return Failure { tr("The server answers with status %1.").arg(status) };
    return m_reply->readAll();
}

void FeedLoader::answer(const Result<QByteArray, QString>& result)
{
    m_timeout.reset();
    m_reply.reset();
    if (const Answer answer = std::exchange(m_answer, nullptr))
        answer(result);
}

} // namespace Orvello
