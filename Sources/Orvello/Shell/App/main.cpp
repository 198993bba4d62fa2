#include "Orvello/Diagnostics/AppLog.h"
#include "Orvello/Diagnostics/CrashGuard.h"
#include "Orvello/Library/Records/WelcomeScript.h"
#include "Orvello/Platform/Desktop/Platform.h"
#include "Orvello/Platform/Desktop/StatusBar.h"
#include "Orvello/Platform/Early/Folders.h"
#include "Orvello/Platform/Early/RunningInstance.h"
#include "Orvello/Platform/Early/UserDefaults.h"
#include "Orvello/Settings/Store/LegacyMigration.h"
#include "Orvello/Shell/App/AppDelegate.h"
#include "Orvello/Shell/App/OrvelloApplication.h"
#include "Orvello/Shell/App/Translation.h"
#include "Orvello/Shell/Commands/MainMenu.h"
#include "Orvello/Shell/Commands/MenuBar.h"
#include "Orvello/Shell/Launch/LaunchOptions.h"
#include "Orvello/Shell/Windows/QtShellWindows.h"

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
    static_cast<void>(std::fputs(text.toLocal8Bit().constData(), stream));
}

AppLog::Session sessionOn(Platform& platform)
{
    return {
        .applicationSupport = platform.folders().applicationSupport().toStdString(),
        .version = version,
        .build = buildNumber,
        .architecture = QSysInfo::buildCpuArchitecture().toStdString(),
        .osVersion = platform.operatingSystemVersion().toStdString(),
        .systemLog = &platform.systemLog(),
    };
}

/// Before any settings are read.
void migrate(Platform& platform)
{
    const auto former = platform.userDefaultsOf(LegacyMigration::formerDomain.toString());
    LegacyMigration::runIfNeeded({ platform.userDefaults(), *former, platform.folders(),
        WelcomeScript::body(platform.facts()) });
}

/// From now on the delegate hears what the system and later starts ask for.
void listen(RunningInstance& instance, AppDelegate& delegate)
{
    instance.listen({
        [&delegate](const QList<QUrl>& urls) { delegate.applicationOpen(urls); },
        [&delegate](const QStringList& arguments) {
            delegate.applicationStartedAgain(LaunchOptions::fromArguments(arguments));
        },
    });
}

} // namespace

int main(int argc, char** argv)
{
    const QStringList arguments = argumentsWithoutProgram(argc, argv);
    const LaunchOptions options = LaunchOptions::fromArguments(arguments);
    if (options.help || options.version) {
        print(stdout,
            options.help ? LaunchOptions::helpText()
                         : u"Orvello %1\n"_s.arg(AppCommands::versionText()));
        return 0;
    }
    std::unique_ptr<Platform> earlyPlatform = Platform::create(arguments);
    const RunningInstance::Claim claim = earlyPlatform->runningInstance().claim(arguments);
    if (claim != RunningInstance::Claim::Granted)
        return claim == RunningInstance::Claim::HandedOver ? 0 : 1;

    AppLog::start(sessionOn(*earlyPlatform));
    CrashGuard::install();
    if (const QString obstacle = earlyPlatform->prepareApplication(); !obstacle.isEmpty()) {
        AppLog::write("LAUNCH failed: %@", obstacle);
        AppLog::endSession();
        return 1;
    }
    OrvelloApplication application(argc, argv);
    installTranslation(application);
    const std::unique_ptr<Platform> platform = std::move(earlyPlatform); // Ends before it.
    if (MenuBar* const menuBar = platform->statusBar().menuBar())
        menuBar->setMainMenu(makeMainMenu(&sendToFocusObject));
    migrate(*platform);

    AppDelegate delegate(
        *platform,
        [](const ShellWindows::Services& services) {
            return std::make_unique<QtShellWindows>(services);
        },
        options);
    QObject::connect(&application, &QCoreApplication::aboutToQuit, &delegate,
        &AppDelegate::applicationWillTerminate);
    delegate.applicationOpen(options.urls);
    listen(platform->runningInstance(), delegate);
    QTimer::singleShot(0, &delegate, &AppDelegate::applicationDidFinishLaunching);
    return OrvelloApplication::exec();
}
