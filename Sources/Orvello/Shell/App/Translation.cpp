#include "Orvello/Shell/App/Translation.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

namespace Orvello {

using namespace Qt::StringLiterals;

void installTranslation(QCoreApplication& application)
{
    // The build puts the edition's files there, under names without the edition. An edition whose
    // words are those of the source has none.
    const QString folder = u":/Orvello/Translations"_s;
    auto* const translator = new QTranslator(&application);
    if (translator->load(QLocale(), u"orvello"_s, u"_"_s, folder)
        || translator->load(u"orvello_en"_s, folder))
        QCoreApplication::installTranslator(translator);
}

} // namespace Orvello
