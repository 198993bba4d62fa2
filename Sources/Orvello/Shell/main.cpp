#include "Orvello/Diagnostics/AppLog.h"
#include "Orvello/Diagnostics/CrashGuard.h"
#include "Orvello/Platform/Folders.h"
#include "Orvello/Platform/Platform.h"
#include "Orvello/Shell/AppDelegate.h"
#include "Orvello/Shell/LaunchOptions.h"
#include "Orvello/Shell/OrvelloApplication.h"
#include "Orvello/Shell/Translation.h"

#include "Version.h"

#include <QSysInfo>
#include <QTimer>

#include <cstdio>

namespace {

using namespace Orvello;
using namespace Qt::StringLiterals;

QStringList argumentsWithoutProgram(int count, char** values)
{
    QStringList arguments;
    for (int i = 1; i < count; ++i)
        arguments.append(QString::fromLocal8Bit(values[i]));
    return arguments;
}

void print(std::FILE* stream, const QString& text)
{
    std::fputs(text.toLocal8Bit().constData(), stream);
}

AppLog::Session sessionOn(Platform& platform)
{
    return {
        .applicationSupport = platform.folders().applicationSupport().toStdString(),
        .version = version,
        .build = buildNumber,
        .architecture = QSysInfo::buildCpuArchitecture().toStdString(),
        .osVersion = QSysInfo::prettyProductName().toStdString(),
        .systemLog = &platform.systemLog(),
    };
}

} // namespace

int main(int argc, char** argv)
{
    const QStringList arguments = argumentsWithoutProgram(argc, argv);
    const LaunchOptions options = LaunchOptions::fromArguments(arguments);
    if (options.help || options.version) {
        print(stdout,
            options.help ? LaunchOptions::helpText()
                         : u"Orvello %1 (%2)\n"_s.arg(
                             QLatin1StringView(version), QLatin1StringView(buildNumber)));
        return 0;
    }
    const std::unique_ptr<Platform> platform = Platform::create(arguments);

    AppLog::start(sessionOn(*platform));
    CrashGuard::install();
    if (const QString obstacle = platform->prepareApplication(); !obstacle.isEmpty()) {
        AppLog::write("LAUNCH failed: %@", obstacle);
        AppLog::endSession();
        return 1;
    }
    OrvelloApplication application(argc, argv);
    installTranslation(application);

    AppDelegate delegate(*platform, options);
    QObject::connect(&application, &QCoreApplication::aboutToQuit, &delegate,
        &AppDelegate::applicationWillTerminate);
    QTimer::singleShot(0, &delegate, &AppDelegate::applicationDidFinishLaunching);
    return OrvelloApplication::exec();
}
