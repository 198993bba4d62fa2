#include "Orvello/Adapters/Linux/Early/XdgFolders.h"

#include <QDir>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

QString folder(const char* variable, const QString& belowHome)
{
    const QString named = qEnvironmentVariable(variable);
    // "All paths set in these environment variables must be absolute. If an implementation
    // encounters a relative path […] it should consider the path invalid and ignore it." (XDG base
    // directories, basics)
    return QDir::isAbsolutePath(named) ? QDir::cleanPath(named) : QDir::homePath() + belowHome;
}

} // namespace

QString XdgFolders::applicationSupport() const
{
    return folder("XDG_DATA_HOME", u"/.local/share"_s);
}

QString XdgFolders::configuration() const { return folder("XDG_CONFIG_HOME", u"/.config"_s); }

} // namespace Orvello
