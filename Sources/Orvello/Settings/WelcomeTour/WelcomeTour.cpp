#include "Orvello/Settings/WelcomeTour/WelcomeTour.h"

#include <QClipboard>
#include <QGuiApplication>

#include <QRegularExpression>

#include <algorithm>

namespace Orvello {

using namespace Qt::StringLiterals;

int WelcomeTour::pageNamed(const QString& text)
{
    static const QRegularExpression decimalInteger(u"\\A[+-]?[0-9]+\\z"_s);
    if (!decimalInteger.match(text).hasMatch())
        return 0;
    constexpr double lastPage = pageCount - 1;
    return static_cast<int>(std::clamp(text.toDouble(), 0.0, lastPage));
}

WelcomeTour::WelcomeTour(int initialPage, bool zoomIsInstalled, const Facts& facts, QObject* parent)
    : QObject(parent)
    , zoomInstalled(zoomIsInstalled)
    , m_facts(facts)
    , m_page(std::clamp(initialPage, 0, pageCount - 1))
{
}

void WelcomeTour::previous()
{
    if (!isFirstPage())
        turnTo(m_page - 1);
}

void WelcomeTour::next()
{
    if (isLastPage())
        Q_EMIT exitRequested();
    else
        turnTo(m_page + 1);
}

void WelcomeTour::skip() { Q_EMIT exitRequested(); }

void WelcomeTour::turnTo(int page)
{
    m_page = page;
    Q_EMIT pageChanged();
}

void WelcomeTour::copyZoomPath() const { QGuiApplication::clipboard()->setText(zoomPath()); }

QString WelcomeTour::zoomPath() const
{
    if (!m_facts.zoomChoosesCapture)
        return tr("Zoom → Share Screen → \"your slides' window\" (not \"Entire Screen\")");
    return tr(
        "Zoom → Settings → Share Screen → Advanced → Screen capture mode → \"Advanced capture "
        "with window filtering\" (or \"Previous operating systems\")");
}

} // namespace Orvello
