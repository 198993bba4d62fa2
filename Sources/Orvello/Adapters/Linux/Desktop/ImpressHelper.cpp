#include "Orvello/Adapters/Linux/Desktop/ImpressHelper.h"

#include "Orvello/Adapters/Portable/QtHelperProcess.h"
#include "Orvello/Diagnostics/AppLog.h"

#include <QCoreApplication>
#include <QFile>
#include <QStandardPaths>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

/// Beside the program in the build folder; when installed, in the folder for programs that nobody
/// starts by hand.
QString helperScript()
{
    const QString folder = QCoreApplication::applicationDirPath() + u'/';
    QString besideProgram = folder + u"impress-helper.py"_s;
    if (QFile::exists(besideProgram))
        return besideProgram;
    return folder + QStringLiteral(ORVELLO_INSTALLED_HELPER);
}

} // namespace

std::unique_ptr<HelperProcess> makeImpressHelper()
{
    // The distribution's own Python, because its package python3-uno works with no other.
    return std::make_unique<QtHelperProcess>(
        u"/usr/bin/python3"_s, QStringList { helperScript(), u"serve"_s });
}

namespace FormerImpressPermission {

namespace {

constexpr double seconds = 20.0;
constexpr qint64 longestProfile = 16LL * 1024 * 1024;

} // namespace

QString profile()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
        + u"/libreoffice/4/user/registrymodifications.xcu"_s;
}

bool isIn(const QString& profile)
{
    QFile file(profile);
    return file.open(QIODevice::ReadOnly)
        && file.read(longestProfile).contains("<value>pipe,name=orvello;urp;</value>");
}

std::unique_ptr<HelperProcess> takeBack()
{
    if (!isIn(profile()))
        return nullptr;
    std::unique_ptr<HelperProcess> helper = makeImpressHelper();
    helper->ask(u"take-back"_s, seconds, [helper = helper.get()](const ScriptResult& result) {
        AppLog::write("Orvello IMPRESS former permission taken back=%d %@",
            static_cast<int>(result.status == 0), result.standardError.trimmed());
        helper->end();
    });
    return helper;
}

} // namespace FormerImpressPermission

} // namespace Orvello
