#pragma once

#include "Orvello/Foundation/Facts.h"

#include <QObject>
#include <QString>

namespace Orvello {

/// Where the user is in the welcome tour, and the ways through it.
class WelcomeTour final : public QObject {
    Q_OBJECT
    Q_PROPERTY(int page READ page NOTIFY pageChanged FINAL)
    Q_PROPERTY(int pageCount MEMBER pageCount CONSTANT FINAL)
    Q_PROPERTY(bool isFirstPage READ isFirstPage NOTIFY pageChanged FINAL)
    Q_PROPERTY(bool isLastPage READ isLastPage NOTIFY pageChanged FINAL)
    Q_PROPERTY(bool zoomInstalled MEMBER zoomInstalled CONSTANT FINAL)

public:
    static constexpr int pageCount = 3;

    /// The page to start on: the decimal integer that `text` is, as near as there is a page; page 0
    /// for any other text.
    [[nodiscard]] static int pageNamed(const QString& text);

    WelcomeTour(int initialPage, bool zoomInstalled, const Facts& facts, QObject* parent = nullptr);

    const bool zoomInstalled; ///< Whether the tour speaks of Zoom.

    int page() const { return m_page; }
    bool isFirstPage() const { return m_page == 0; }
    bool isLastPage() const { return m_page == pageCount - 1; }

    Q_INVOKABLE void goBack(); ///< On the first page nothing.
    Q_INVOKABLE void goOn(); ///< One page on; from the last one out of the tour.
    Q_INVOKABLE void skip(); ///< Out of the tour.

    /// Puts the way to Zoom's setting on the clipboard, as plain text.
    Q_INVOKABLE void copyZoomPath() const;
    QString zoomPath() const;

Q_SIGNALS:
    void pageChanged();
    void left(); ///< The user wants out. Can come more than once.

private:
    void turnTo(int page);

    const Facts m_facts;
    int m_page;
};

} // namespace Orvello
