#include "Orvello/Presentations/Decks/PackagePath.h"

#include <QList>

namespace Orvello::PptxImporter {

QString resolve(QStringView target, QStringView relativeTo)
{
    QList<QStringView> pieces = relativeTo.split(u'/', Qt::SkipEmptyParts);
    for (const QStringView piece : target.split(u'/', Qt::SkipEmptyParts)) {
        if (piece == u"..") {
            if (!pieces.isEmpty())
                pieces.removeLast();
        } else if (piece != u".") {
            pieces.append(piece);
        }
    }
    QString path;
    for (const QStringView piece : pieces) {
        if (!path.isEmpty())
            path += u'/';
        path += piece;
    }
    return path;
}

QString fileName(QStringView path) { return path.mid(path.lastIndexOf(u'/') + 1).toString(); }

} // namespace Orvello::PptxImporter
