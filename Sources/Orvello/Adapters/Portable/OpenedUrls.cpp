#include "Orvello/Adapters/Portable/OpenedUrls.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QFileOpenEvent>

#include <utility>

namespace Orvello {

OpenedUrls::OpenedUrls(QString scheme, QObject* parent)
    : QObject(parent)
    , m_scheme(std::move(scheme))
{
    QCoreApplication::instance()->installEventFilter(this);
    QDesktopServices::setUrlHandler(m_scheme, this, "open");
}

OpenedUrls::~OpenedUrls() { QDesktopServices::unsetUrlHandler(m_scheme); }

bool OpenedUrls::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != QCoreApplication::instance() || event->type() != QEvent::FileOpen)
        return false;
    open(static_cast<const QFileOpenEvent&>(*event).url());
    return true;
}

void OpenedUrls::open(const QUrl& url) { Q_EMIT opened({ url }); }

} // namespace Orvello
