#include "Orvello/Shell/OrvelloApplication.h"

#include "Version.h"

namespace Orvello {

using namespace Qt::StringLiterals;

OrvelloApplication::OrvelloApplication(int& argumentCount, char** arguments)
    : QApplication(argumentCount, arguments)
{
    setApplicationName(u"Orvello"_s);
    setApplicationVersion(QString::fromLatin1(version));
    setQuitOnLastWindowClosed(false);
}

} // namespace Orvello
