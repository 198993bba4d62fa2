#include "Tests/Support/EventLoop.h"

#include <QCoreApplication>

namespace Orvello::Testing {

void drainEvents()
{
    QCoreApplication::sendPostedEvents(nullptr, 0);
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace Orvello::Testing
