#include "Orvello/Shell/App/OrvelloApplication.h"

#include "Version.h"

#include <QEvent>

namespace Orvello {

using namespace Qt::StringLiterals;

OrvelloApplication::OrvelloApplication(int& argumentCount, char** arguments)
    : QApplication(argumentCount, arguments)
{
    setApplicationName(u"Orvello"_s);
    // From the name of its desktop file the desktop knows whose windows, keys and permissions they
    // are.
    setDesktopFileName(u"app.orvello.Orvello"_s);
    setApplicationVersion(QString::fromLatin1(version));
    setQuitOnLastWindowClosed(false);
}

/// The system asks for the end of the program, at a log-out for example. Qt would close every
/// window first, and closing the welcome tour counts as having seen it.
bool OrvelloApplication::event(QEvent* event)
{
    if (event->type() != QEvent::Quit)
        return QApplication::event(event);
    exit();
    return true;
}

} // namespace Orvello
