#include "Orvello/Settings/WelcomeTour/WelcomeTour.h"

#include <QClipboard>
#include <QGuiApplication>

#include <algorithm>

namespace Orvello {

using namespace Qt::StringLiterals;

int WelcomeTour::pageNamed(const QString& text)
{
    const bool isSigned = text.startsWith(u'+') || text.startsWith(u'-');
    const QStringView digits = QStringView(text).sliced(isSigned ? 1 : 0);
    const bool isNumber = !digits.isEmpty() && std::ranges::all_of(digits, [](QChar character) {
        return character >= u'0' && character <= u'9';
    });
    if (!isNumber || text.startsWith(u'-'))
        return 0;
    bool isInRange = false;
    const int page = digits.toInt(&isInRange);
    return isInRange ? std::min(page, pageCount - 1) : pageCount - 1;
}

WelcomeTour::WelcomeTour(int initialPage, bool zoomIsInstalled, const Facts& facts, QObject* parent)
    : QObject(parent)
    , zoomInstalled(zoomIsInstalled)
    , m_facts(facts)
    , m_page(std::clamp(initialPage, 0, pageCount - 1))
{
}

void WelcomeTour::goBack()
{
    if (!isFirstPage())
        turnTo(m_page - 1);
}

void WelcomeTour::goOn()
{
    if (isLastPage())
        Q_EMIT left();
    else
        turnTo(m_page + 1);
}

void WelcomeTour::skip() { Q_EMIT left(); }

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
