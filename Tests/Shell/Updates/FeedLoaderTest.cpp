#include "Orvello/Shell/Updates/FeedLoader.h"

#include "Tests/Support/LoopbackServer.h"
#include "Tests/Support/ManualTimeSource.h"

#include <QFile>
#include <QLocale>
#include <QMap>
#include <QProcess>
#include <QSslConfiguration>
#include <QSslKey>
#include <QTemporaryDir>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;
using ::testing::HasSubstr;

/// A certificate for 127.0.0.1 that nobody has signed but itself.
QSslConfiguration selfSigned()
{
    const QTemporaryDir folder;
    const QString key = folder.filePath(u"key.pem"_s);
    const QString certificate = folder.filePath(u"certificate.pem"_s);
    QProcess openssl;
    openssl.start(u"openssl"_s,
        { u"req"_s, u"-x509"_s, u"-newkey"_s, u"ec"_s, u"-pkeyopt"_s,
            u"ec_paramgen_curve:prime256v1"_s, u"-nodes"_s, u"-keyout"_s, key, u"-out"_s,
            certificate, u"-days"_s, u"2"_s, u"-subj"_s, u"/CN=127.0.0.1"_s, u"-addext"_s,
            u"subjectAltName=IP:127.0.0.1"_s });
    EXPECT_TRUE(openssl.waitForFinished(20'000));
    EXPECT_EQ(openssl.exitCode(), 0);
    QFile keyFile(key);
    EXPECT_TRUE(keyFile.open(QIODevice::ReadOnly));
    QSslConfiguration tls;
    tls.setPrivateKey(QSslKey(&keyFile, QSsl::Ec));
    tls.setLocalCertificateChain(QSslCertificate::fromPath(certificate));
    return tls;
}

class FeedLoaderTest : public ::testing::Test {
protected:
    using Answer = Result<QByteArray, QString>;

    void load(const QUrl& url)
    {
        answers = 0;
        answer.reset();
        loader.load(url, u"Orvello/1"_s, [this](const Answer& result) {
            answer = result;
            ++answers;
        });
    }
    bool waitForAnswer() const
    {
        return QTest::qWaitFor([&] { return answer.has_value(); });
    }
    std::string failure() const
    {
        return answer && !*answer ? answer->error().toStdString() : "(no failure)";
    }

    Testing::ManualTimeSource time;
    FeedLoader loader { time };
    std::optional<Answer> answer;
    int answers = 0;
};

TEST_F(FeedLoaderTest, allowsTlsAndThisMachineOnly)
{
    for (const QString& url : { u"https://example.com/a.xml"_s, u"http://127.0.0.1:8000/a"_s,
             u"http://localhost/a"_s, u"http://[::1]/a"_s })
        EXPECT_TRUE(FeedLoader::isSecure(QUrl(url))) << qPrintable(url);
    for (const QString& url : { u"http://example.com/a.xml"_s, u"file:///etc/passwd"_s,
             u"ftp://example.com/a"_s, u"https:///a"_s, u"/a"_s, u""_s, u"javascript:alert(1)"_s,
             u"http://127.0.0.1.example.com/"_s, u"http://localhost.example.com/"_s })
        EXPECT_FALSE(FeedLoader::isSecure(QUrl(url))) << qPrintable(url);
}

TEST_F(FeedLoaderTest, readsADocument)
{
    Testing::LoopbackServer server;
    server.serve(u"/feed"_s, "the document");

    load(server.url(u"/feed"_s));

    ASSERT_TRUE(waitForAnswer());
    ASSERT_TRUE(*answer) << failure();
    EXPECT_EQ(**answer, "the document");
    EXPECT_THAT(
        server.requests().first().toLower().toStdString(), HasSubstr("user-agent: orvello/1"));
    EXPECT_EQ(time.pendingCalls(), 0U);
}

TEST_F(FeedLoaderTest, readsTheLargestDocument)
{
    Testing::LoopbackServer server;
    server.serve(u"/feed"_s, QByteArray(1'000'000, 'x'));

    load(server.url(u"/feed"_s));

    ASSERT_TRUE(waitForAnswer());
    ASSERT_TRUE(*answer) << failure();
    EXPECT_EQ((*answer)->size(), 1'000'000);
}

TEST_F(FeedLoaderTest, refusesAHugeDocument)
{
    Testing::LoopbackServer server;
    server.serve(u"/feed"_s, QByteArray(1'000'001, 'x'));

    load(server.url(u"/feed"_s));

    ASSERT_TRUE(waitForAnswer());
    EXPECT_EQ(failure(), "The document is too large.");
}

TEST_F(FeedLoaderTest, refusesADocumentWithoutEnd)
{
    Testing::LoopbackServer server;
    server.serveRaw(u"/feed"_s, "HTTP/1.1 200 OK\r\n\r\n" + QByteArray(1'200'000, 'x'), false);

    load(server.url(u"/feed"_s));

    ASSERT_TRUE(waitForAnswer());
    EXPECT_EQ(failure(), "The document is too large.");
}

TEST_F(FeedLoaderTest, givesUpOnASilentServer)
{
    Testing::LoopbackServer server;
    server.serveRaw(u"/feed"_s, "", false);
    load(server.url(u"/feed"_s));
    ASSERT_TRUE(QTest::qWaitFor([&] { return !server.requests().isEmpty(); }));

    time.advance(9.9);
    EXPECT_FALSE(answer);
    time.advance(0.1);

    EXPECT_EQ(failure(), "The server did not answer in time.");
}

TEST_F(FeedLoaderTest, givesUpOnAServerThatDripsForever)
{
    Testing::LoopbackServer server;
    server.serveRaw(u"/feed"_s, "HTTP/1.1 200 OK\r\n\r\n<rss>", false);
    load(server.url(u"/feed"_s));
    ASSERT_TRUE(QTest::qWaitFor([&] { return !server.requests().isEmpty(); }));

    time.advance(10);

    EXPECT_EQ(failure(), "The server did not answer in time.");
}

TEST_F(FeedLoaderTest, failsWithoutAServer)
{
    QUrl gone;
    {
        const Testing::LoopbackServer server;
        gone = server.url(u"/feed"_s);
    }

    load(gone);

    ASSERT_TRUE(waitForAnswer());
    EXPECT_THAT(failure(), HasSubstr("refused"));
}

TEST_F(FeedLoaderTest, failsOnADocumentCutShort)
{
    Testing::LoopbackServer server;
    server.serveRaw(u"/feed"_s, "HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\n<rss>");

    load(server.url(u"/feed"_s));

    ASSERT_TRUE(waitForAnswer());
    EXPECT_NE(failure(), "(no failure)");
}

TEST_F(FeedLoaderTest, failsOnAnythingButSuccess)
{
    Testing::LoopbackServer server;
    server.serveRaw(u"/missing"_s, "HTTP/1.1 404 Not Found\r\nContent-Length: 1\r\n\r\nx");
    server.serveRaw(u"/empty"_s, "HTTP/1.1 204 No Content\r\n\r\n");
    server.serveRaw(u"/noise"_s, "\x16\x03\x01 this is no web server");

    for (const QString& path : { u"/missing"_s, u"/empty"_s, u"/noise"_s }) {
        load(server.url(path));
        ASSERT_TRUE(waitForAnswer()) << qPrintable(path);
        EXPECT_NE(failure(), "(no failure)") << qPrintable(path);
    }
}

TEST_F(FeedLoaderTest, doesNotAskForCompression)
{
    Testing::LoopbackServer server;
    server.serve(u"/feed"_s, "x");

    load(server.url(u"/feed"_s));

    ASSERT_TRUE(waitForAnswer());
    EXPECT_THAT(
        server.requests().first().toLower().toStdString(), HasSubstr("accept-encoding: identity"));
}

TEST_F(FeedLoaderTest, saysNothingOfTheUser)
{
    Testing::LoopbackServer server;
    const QLocale before;
    QLocale::setDefault(QLocale(u"de_CH"_s));
    server.serve(u"/feed"_s, "<rss/>");
    load(server.url(u"/feed"_s));
    ASSERT_TRUE(waitForAnswer());
    QLocale::setDefault(before);

    QList<QByteArray> lines = server.requests().first().split('\n');
    QMap<QByteArray, QByteArray> headers;
    for (const QByteArray& line : lines.sliced(1)) {
        if (const qsizetype colon = line.indexOf(':'); colon > 0)
            headers.insert(line.first(colon).toLower(), line.sliced(colon + 1).trimmed());
    }
    headers.remove("host");
    EXPECT_EQ(headers,
        (QMap<QByteArray, QByteArray> { { "accept-encoding", "identity" },
            { "accept-language", "*" }, { "connection", "Keep-Alive" },
            { "user-agent", "Orvello/1" } }));
}

TEST_F(FeedLoaderTest, letsTheNetworkLeadNowhereOnThisMachine)
{
    const QUrl remote(u"https://example.com/feed"_s);
    const QUrl local(u"http://127.0.0.1:8000/feed"_s);
    for (const QString& page :
        { u"http://127.0.0.1/a"_s, u"https://localhost/a"_s, u"https://printer.localhost/a"_s,
            u"https://127.1/a"_s, u"https://[::1]/a"_s, u"https://0.0.0.0/a"_s, u"https://[::]/a"_s,
            u"https://[::ffff:127.0.0.1]/a"_s, u"https://2130706433/a"_s }) {
        EXPECT_FALSE(FeedLoader::mayLead(remote, QUrl(page))) << qPrintable(page);
    }
    EXPECT_TRUE(FeedLoader::mayLead(local, QUrl(u"http://127.0.0.1/a"_s)));
    EXPECT_TRUE(FeedLoader::mayLead(local, QUrl(u"https://example.com/a"_s)));
    EXPECT_TRUE(FeedLoader::mayLead(remote, QUrl(u"https://example.org/a"_s)));
    EXPECT_FALSE(FeedLoader::mayLead(local, QUrl(u"http://example.com/a"_s)));
}

TEST_F(FeedLoaderTest, followsASecureRedirect)
{
    Testing::LoopbackServer server;
    server.redirect(u"/old"_s, server.url(u"/new"_s));
    server.serve(u"/new"_s, "moved");

    load(server.url(u"/old"_s));

    ASSERT_TRUE(waitForAnswer());
    ASSERT_TRUE(*answer) << failure();
    EXPECT_EQ(**answer, "moved");
}

TEST_F(FeedLoaderTest, refusesARedirectToPlainHttp)
{
    Testing::LoopbackServer server;
    server.redirect(u"/old"_s, QUrl(u"http://example.com/feed"_s));

    load(server.url(u"/old"_s));

    ASSERT_TRUE(waitForAnswer());
    EXPECT_EQ(failure(), "The server redirects to an insecure address.");
}

TEST_F(FeedLoaderTest, doesNotFollowRedirectsForever)
{
    Testing::LoopbackServer server;
    server.redirect(u"/round"_s, server.url(u"/round"_s));

    load(server.url(u"/round"_s));

    ASSERT_TRUE(waitForAnswer());
    EXPECT_NE(failure(), "(no failure)");
    EXPECT_LT(server.requests().size(), 10);
}

TEST_F(FeedLoaderTest, refusesACertificateThatNobodySigned)
{
    Testing::LoopbackServer server(selfSigned());
    server.serve(u"/feed"_s, "secret");

    load(server.url(u"/feed"_s));

    ASSERT_TRUE(waitForAnswer());
    EXPECT_NE(failure(), "(no failure)");
    EXPECT_TRUE(server.requests().isEmpty());
}

TEST_F(FeedLoaderTest, refusesARedirectFromTlsToPlainOnThisMachineToo)
{
    const QSslConfiguration tls = selfSigned();
    QSslConfiguration trusting = QSslConfiguration::defaultConfiguration();
    const QSslConfiguration before = trusting;
    trusting.addCaCertificates(tls.localCertificateChain());
    QSslConfiguration::setDefaultConfiguration(trusting);
    Testing::LoopbackServer server(tls);
    Testing::LoopbackServer plain;
    server.serve(u"/feed"_s, "over TLS");
    server.redirect(u"/old"_s, plain.url(u"/feed"_s));

    load(server.url(u"/feed"_s));
    ASSERT_TRUE(waitForAnswer());
    ASSERT_TRUE(*answer) << failure();
    load(server.url(u"/old"_s));
    ASSERT_TRUE(waitForAnswer());

    EXPECT_NE(failure(), "(no failure)");
    EXPECT_TRUE(plain.requests().isEmpty());
    QSslConfiguration::setDefaultConfiguration(before);
}

TEST_F(FeedLoaderTest, answersOnceAndOnlyTheLastCall)
{
    Testing::LoopbackServer server;
    server.serve(u"/one"_s, "one");
    server.serve(u"/two"_s, "two");

    load(server.url(u"/one"_s));
    load(server.url(u"/two"_s));

    ASSERT_TRUE(waitForAnswer());
    QTest::qWait(50);
    time.advance(20);
    EXPECT_EQ(answers, 1);
    ASSERT_TRUE(*answer) << failure();
    EXPECT_EQ(**answer, "two");
}

} // namespace
} // namespace Orvello
