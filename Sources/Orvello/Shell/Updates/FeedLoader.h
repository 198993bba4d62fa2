#pragma once

#include "Orvello/Foundation/Result.h"
#include "Orvello/Platform/Early/TimeSource.h"

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QUrl>

#include <functional>
#include <memory>

class QNetworkReply;

namespace Orvello {

/// Reads small documents from the network: over TLS only, or without it from this very machine; at
/// most a megabyte and ten seconds, whatever the server does. Main thread.
class FeedLoader final : public QObject {
    Q_OBJECT

public:
    using Answer = std::function<void(const Result<QByteArray, QString>&)>;

    static constexpr qint64 maximumBytes = 1'000'000;
    static constexpr double timeoutSeconds = 10;

    explicit FeedLoader(TimeSource& time); ///< `time` must outlive the loader.
    ~FeedLoader() override;

    /// Whether a document may be read from there, or a person be sent there.
    [[nodiscard]] static bool isSecure(const QUrl& url);

    /// The same for an address that a document at `source` names: what came over the network leads
    /// nowhere on this machine.
    [[nodiscard]] static bool mayLead(const QUrl& source, const QUrl& target);

    /// The request says nothing of the user, not even the language. Answers once, later, with the
    /// document or the reason why there is none, in words for people. One document at a time: a new
    /// call takes the place of the one before, which is not answered.
    void load(const QUrl& url, const QString& userAgent, Answer answer);

private:
    Result<QByteArray, QString> document() const;
    void answer(const Result<QByteArray, QString>& result);

    TimeSource& m_time;
    std::unique_ptr<QNetworkReply, void (*)(QNetworkReply*)> m_reply;
    std::unique_ptr<TimeSource::Ticket> m_timeout;
    Answer m_answer;
};

} // namespace Orvello
