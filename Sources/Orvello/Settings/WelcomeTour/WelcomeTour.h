#pragma once

#include "Orvello/Platform/Early/Facts.h"

#include <QObject>
#include <QString>

namespace Orvello {

/// Where the user is in the welcome tour, and the commands that lead through it.
class WelcomeTour final : public QObject {
    Q_OBJECT
    Q_PROPERTY(int page READ page NOTIFY pageChanged FINAL)
    Q_PROPERTY(int pageCount MEMBER pageCount CONSTANT FINAL)
    Q_PROPERTY(bool isFirstPage READ isFirstPage NOTIFY pageChanged FINAL)
    Q_PROPERTY(bool isLastPage READ isLastPage NOTIFY pageChanged FINAL)
    Q_PROPERTY(bool zoomInstalled MEMBER zoomInstalled CONSTANT FINAL)

public:
    static constexpr int pageCount = 3;

    /// The page to start on: the one nearest to the decimal integer in `text`; page 0 for any other
    /// text.
    [[nodiscard]] static int pageNamed(const QString& text);

    WelcomeTour(int initialPage, bool zoomInstalled, const Facts& facts, QObject* parent = nullptr);

    const bool zoomInstalled; ///< Whether the tour mentions Zoom.

    int page() const { return m_page; }
    bool isFirstPage() const { return m_page == 0; }
    bool isLastPage() const { return m_page == pageCount - 1; }

    Q_INVOKABLE void previous(); ///< Does nothing on the first page.
    Q_INVOKABLE void next(); ///< Goes to the next page; leaves the tour from the last one.
    Q_INVOKABLE void skip(); ///< Leaves the tour.

    /// Puts the way to Zoom's setting on the clipboard, as plain text.
    Q_INVOKABLE void copyZoomPath() const;
    QString zoomPath() const;

Q_SIGNALS:
    void pageChanged();
    void exitRequested(); ///< The user wants to leave the tour. May be emitted more than once.

private:
    void turnTo(int page);

    const Facts m_facts;
    int m_page;
};

} // namespace Orvello
