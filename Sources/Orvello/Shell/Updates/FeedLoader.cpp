#include "Orvello/Shell/Updates/FeedLoader.h"

#include <QHostAddress>
#include <QNetworkReply>
#include <QNetworkRequest>

#include <utility>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

constexpr int maximumRedirects = 5;

/// Replies may be in the middle of a signal when they are no longer wanted.
void dispose(QNetworkReply* reply)
{
    reply->disconnect();
    reply->abort();
    reply->deleteLater();
}

bool isThisMachine(const QString& host)
{
    return host == u"localhost" || QHostAddress(host).isLoopback();
}

} // namespace

FeedLoader::FeedLoader(TimeSource& time)
    : m_time(time)
    , m_reply(nullptr, &dispose)
{
    m_network.setRedirectPolicy(QNetworkRequest::UserVerifiedRedirectPolicy);
}

FeedLoader::~FeedLoader() = default;

bool FeedLoader::isSecure(const QUrl& url)
{
    if (!url.isValid() || url.host().isEmpty())
        return false;
    return url.scheme() == u"https" || (url.scheme() == u"http" && isThisMachine(url.host()));
}

void FeedLoader::load(const QUrl& url, const QString& userAgent, Answer answer)
{
    m_answer = std::move(answer);
    m_document.clear();
    m_isOverTls = url.scheme() == u"https";
    QNetworkRequest request(url);
    request.setMaximumRedirectsAllowed(maximumRedirects);
    request.setHeader(QNetworkRequest::UserAgentHeader, userAgent);
    // Compression would only let a small answer become a huge document.
    request.setRawHeader("Accept-Encoding", "identity");
    request.setAttribute(
        QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);

    // A connection kept since the last document, a day ago as a rule, is dead.
    m_network.clearConnectionCache();
    m_reply.reset(m_network.get(request));
    connect(m_reply.get(), &QNetworkReply::redirected, this, &FeedLoader::redirected);
    connect(m_reply.get(), &QNetworkReply::readyRead, this, &FeedLoader::received);
    connect(m_reply.get(), &QNetworkReply::finished, this, &FeedLoader::finished);
    m_timeout = m_time.callAfter(
        timeoutSeconds, [this] { fail(tr("The server did not answer in time.")); });
}

void FeedLoader::redirected(const QUrl& target)
{
    const bool isDowngrade = m_isOverTls && target.scheme() != u"https";
    m_isOverTls = target.scheme() == u"https";
    if (isSecure(target) && !isDowngrade)
        Q_EMIT m_reply->redirectAllowed();
    else
        fail(tr("The server redirects to an insecure address."));
}

void FeedLoader::received()
{
    m_document += m_reply->read(maximumBytes + 1 - m_document.size());
    if (m_document.size() > maximumBytes)
        fail(tr("The document is too large."));
}

void FeedLoader::finished()
{
    const QVariant status = m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute);
    if (m_reply->error() != QNetworkReply::NoError)
        return fail(m_reply->errorString());
    constexpr int ok = 200;
    if (status.toInt() != ok)
        return fail(tr("The server answers with status %1.").arg(status.toInt()));
    received(); // What is left; a document that is too large is answered there.
    if (m_answer)
        answer(std::exchange(m_document, {}));
}

void FeedLoader::fail(const QString& reason) { answer(Failure { reason }); }

void FeedLoader::answer(const Result<QByteArray, QString>& result)
{
    m_timeout.reset();
    m_reply.reset();
    if (const Answer answer = std::exchange(m_answer, nullptr))
        answer(result);
}

} // namespace Orvello
