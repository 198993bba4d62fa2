#include "Orvello/Platform/Early/Facts.h"

#include <QCoreApplication>

namespace Orvello {

namespace {

constexpr auto impress = "LibreOffice Impress"; // A name in every language.

QString translated(const char* names)
{
    return QCoreApplication::translate("Orvello::Facts", names);
}

} // namespace

QString Facts::presenters() const
{
    //: Stands where other texts say which presentation programs they mean.
    return translated(hasKeynoteAndPowerPoint
            ? QT_TRANSLATE_NOOP("Orvello::Facts", "Keynote or PowerPoint")
            : impress);
}

QString Facts::presentersInFull() const
{
    //: Stands where other texts say which presentation programs they mean.
    return translated(hasKeynoteAndPowerPoint
            ? QT_TRANSLATE_NOOP("Orvello::Facts", "Keynote or Microsoft PowerPoint")
            : impress);
}

} // namespace Orvello
