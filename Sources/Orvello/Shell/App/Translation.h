#pragma once

#include <QStringList>

class QCoreApplication;
class QString;

namespace Orvello {

/// Gives the application the words of the first of the user's languages that the program speaks,
/// Qt's own words with them, and that language's direction. For an object that exists, before the
/// first window.
void installTranslation(QCoreApplication& application);

/// The same for any languages, such as "de-AT", and any folder with files orvello_<language>.qm.
void installTranslation(
    QCoreApplication& application, const QStringList& languages, const QString& folder);

} // namespace Orvello
