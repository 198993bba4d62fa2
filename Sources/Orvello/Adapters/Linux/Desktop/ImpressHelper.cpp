#include "Orvello/Adapters/Linux/Desktop/ImpressHelper.h"

#include "Orvello/Adapters/Portable/QtHelperProcess.h"

#include <QCoreApplication>
#include <QFile>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

/// Beside the program in the build folder; when installed, in the folder for programs that nobody
/// starts by hand.
QString helperScript()
{
    const QString folder = QCoreApplication::applicationDirPath() + u'/';
    const QString besideProgram = folder + u"impress-helper.py"_s;
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

} // namespace Orvello
