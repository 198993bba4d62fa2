#include "Tests/Gallery/Editions.h"

#include <QCoreApplication>
#include <QTranslator>

namespace Orvello::Gallery {

StageWords::StageWords(Edition edition)
{
    if (edition == Edition::MacOS)
        m_removed = QCoreApplication::instance()->findChildren<QTranslator*>();
    for (QTranslator* const translator : m_removed)
        QCoreApplication::removeTranslator(translator);
}

StageWords::~StageWords()
{
    for (QTranslator* const translator : m_removed)
        QCoreApplication::installTranslator(translator);
}

} // namespace Orvello::Gallery
