#include "Orvello/Foundation/PrivateFolder.h"

#include <QDir>
#include <QFile>

#include <cerrno>
#include <sys/stat.h>

namespace Orvello {

bool makePrivateFolder(const QString& path)
{
    const QString clean = QDir::cleanPath(path);
    if (QDir(clean).exists())
        return true;
    const QString parent = clean.left(clean.lastIndexOf(u'/'));
    if (!parent.isEmpty() && parent != clean && !makePrivateFolder(parent))
        return false;
    return ::mkdir(QFile::encodeName(clean).constData(), 0700) == 0
        || (errno == EEXIST && QDir(clean).exists()); // Somebody else was faster.
}

} // namespace Orvello
