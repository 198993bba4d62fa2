#pragma once

#include <QList>
#include <QObject>
#include <QUrl>

namespace Orvello {

/// The addresses that macOS hands to the running program, whichever way this Qt version passes them
/// on: up to 6.4 as file-open events, in 6.8 only to a handler for their scheme, later either way.
/// Never both for one address. Main thread; made after the application object, before its event
/// loop runs.
class OpenedUrls final : public QObject {
    Q_OBJECT

public:
    explicit OpenedUrls(QString scheme, QObject* parent = nullptr);
    ~OpenedUrls() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

public Q_SLOTS:
    void open(const QUrl& url); ///< For QDesktopServices, which calls it by name.

Q_SIGNALS:
    void opened(const QList<QUrl>& urls);

private:
    const QString m_scheme;
};

} // namespace Orvello
