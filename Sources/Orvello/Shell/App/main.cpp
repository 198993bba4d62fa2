#include "Orvello/Diagnostics/AppLog.h"
#include "Orvello/Diagnostics/CrashGuard.h"
#include "Orvello/Diagnostics/LossyOutput.h"
#include "Orvello/Library/Records/WelcomeScript.h"
#include "Orvello/Platform/Desktop/DesktopPlatform.h"
#include "Orvello/Platform/Desktop/StatusBar.h"
#include "Orvello/Platform/Early/EarlyPlatform.h"
#include "Orvello/Platform/Early/Folders.h"
#include "Orvello/Platform/Early/RunningInstance.h"
#include "Orvello/Platform/Early/UserDefaults.h"
#include "Orvello/Platform/Sound/SoundPlatform.h"
#include "Orvello/Presentations/Decks/PptxImporter.h"
#include "Orvello/Settings/Store/LegacyMigration.h"
#include "Orvello/Shell/App/AppDelegate.h"
#include "Orvello/Shell/App/OrvelloApplication.h"
#include "Orvello/Shell/App/Translation.h"
#include "Orvello/Shell/Commands/MainMenu.h"
#include "Orvello/Shell/Commands/MenuBar.h"
#include "Orvello/Shell/Launch/CommandLineTable.h"
#include "Orvello/Shell/Launch/LaunchOptions.h"
#include "Orvello/Shell/Windows/QtShellWindows.h"
#include "Orvello/Shell/Windows/Renderer.h"

#include "Version.h"

#include <QSysInfo>
#include <QTimer>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <unistd.h>
#include <utility>
#include <vector>

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

AppLog::Session sessionOn(EarlyPlatform& platform)
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
void migrate(EarlyPlatform& platform)
{
    const auto former = platform.userDefaultsOf(LegacyMigration::formerDomain.toString());
    LegacyMigration::runIfNeeded({ platform.userDefaults(), *former, platform.folders(),
        WelcomeScript::body(platform.facts()) });
}

/// The decks on the command line, and what is wrong with the files that are none.
struct Decks {
    AppDelegate::ReadDecks read;
    std::map<QString, PptxImporter::ImportError> refused;
};

Decks readDecks(const QStringList& files)
{
    Decks decks;
    for (const QString& file : files) {
        if (auto deck = PptxImporter::importDeck(file))
            decks.read.emplace(file, std::move(*deck));
        else
            decks.refused.emplace(file, deck.error());
    }
    return decks;
}

/// Tells the user, a line each, in the terminal or the log of whoever started the program.
void complain(const QStringList& problems)
{
    for (const QString& problem : problems)
        print(stderr, u"orvello: "_s + problem + u'\n');
}

/// The exit status of a start that leaves everything to the process that runs.
int finishAfter(const RunningInstance::Outcome& outcome)
{
    complain(outcome.messages);
    if (outcome.claim == RunningInstance::Claim::Unanswered)
        return ExitStatus::cannotRun;
    return outcome.messages.isEmpty() ? EXIT_SUCCESS : ExitStatus::refused;
}

RunningInstance* runningInstance = nullptr;

/// The toolkit ends the process by itself, with exit(3), when the X server goes away, on whichever
/// thread notices. The session ends as it does at any quit; static objects, which other threads may
/// still use, are left alone.
void endSessionAtExit()
{
    if (!AppLog::hasOpenSession())
        return;
    AppLog::endSession();
    runningInstance->release();
    std::_Exit(ExitStatus::cannotRun);
}

/// From now on the session is ended whichever way the process ends, short of a kill or a crash.
void guardSession(RunningInstance& instance)
{
    runningInstance = &instance;
    static_cast<void>(std::atexit(endSessionAtExit));
}

/// Set for a process that replaced one whose renderer could not start, to that renderer's name.
constexpr auto failedRendererVariable = "ORVELLO_FAILED_RENDERER";

/// The renderer cannot be changed in a process that has used one, so the other one gets a process
/// of its own, in the place of this one. Returns only when that is not possible.
void startAgainWith(Renderer::Kind other, Renderer::Kind failed, char** arguments)
{
    qputenv("ORVELLO_RENDERER", Renderer::nameOf(other).toLatin1());
    qputenv(failedRendererVariable, Renderer::nameOf(failed).toLatin1());
    const QByteArray program = QFile::encodeName(QCoreApplication::applicationFilePath());
    AppLog::endSession();
    runningInstance->release();
    ::execv(program.constData(), arguments);
}

Renderer::Kind rendererOf(const LaunchOptions& options, DesktopPlatform& desktop)
{
    const QString wish = options.environment.value(u"ORVELLO_RENDERER"_s).toString();
    if (const std::optional<Renderer::Kind> wanted = Renderer::named(wish))
        return *wanted;
    return desktop.hasHardwareRenderer() ? Renderer::Kind::Hardware : Renderer::Kind::Software;
}

/// Settles what draws the windows, and what happens when it cannot.
void useRenderer(Renderer::Kind kind, const QString& failedBefore, char** arguments)
{
    Renderer::use(kind);
    Renderer::onFailure([=](const QString& reason) {
        const Renderer::Kind other = Renderer::otherThan(kind);
        if (failedBefore.isEmpty()) {
            AppLog::write("RENDERER %@ failed: %@; starting again with %@", Renderer::nameOf(kind),
                reason, Renderer::nameOf(other));
            startAgainWith(other, kind, arguments);
        }
        AppLog::write("LAUNCH failed: neither %@ nor %@ can draw here: %@", Renderer::nameOf(other),
            Renderer::nameOf(kind), reason);
        std::exit(ExitStatus::cannotRun); // Which ends the session.
    });
}

/// From now on the delegate hears what the system and later starts ask for.
void listen(RunningInstance& instance, AppDelegate& delegate)
{
    instance.listen({
        [&delegate](const QList<QUrl>& urls) { delegate.applicationOpen(urls); },
        [&delegate](const ProgramStart& start, const RunningInstance::Answer& answer) {
            delegate.applicationStartedAgain(LaunchOptions::of(start), answer);
        },
    });
}

} // namespace

int main(int argc, char** argv)
{
    LossyOutput::fillStandardStreams();
    // Whoever reads standard error, where the log goes too, may be gone before the program is.
    static_cast<void>(std::signal(SIGPIPE, SIG_IGN));
    const QStringList arguments = argumentsWithoutProgram(argc, argv);
    const ProgramStart start = LaunchOptions::thisStart(arguments);
    LaunchOptions options = LaunchOptions::of(start);
    if (options.help || options.version) {
        print(stdout,
            options.help ? CommandLineTable::helpText()
                         : u"Orvello %1\n"_s.arg(AppCommands::versionText()));
        return EXIT_SUCCESS;
    }
    Decks decks = readDecks(options.files);
    if (!options.mistakes.isEmpty() || !decks.refused.empty()) {
        // Asked again, in the user's language, which needs an application object.
        QCoreApplication application(argc, argv);
        installTranslation(application);
        QStringList problems = LaunchOptions::of(start).mistakes;
        for (const auto& [file, error] : decks.refused)
            problems.append(file + u": "_s + PptxImporter::description(error));
        complain(problems);
        print(stderr, LaunchOptions::tr("Try \"orvello --help\".") + u'\n');
        return ExitStatus::mistaken;
    }
    std::unique_ptr<EarlyPlatform> firstStep = EarlyPlatform::create(arguments);
    const RunningInstance::Outcome outcome = firstStep->runningInstance().claim(start);
    if (outcome.claim != RunningInstance::Claim::Granted)
        return finishAfter(outcome);

    AppLog::start(sessionOn(*firstStep));
    CrashGuard::install();
    guardSession(firstStep->runningInstance());
    if (const QString obstacle = DesktopPlatform::prepare(); !obstacle.isEmpty()) {
        AppLog::write("LAUNCH failed: %@", obstacle);
        AppLog::endSession();
        return ExitStatus::cannotRun;
    }
    // The toolkit takes its own options out of the list.
    std::vector<char*> allArguments(argv, argv + argc + 1);
    const QString failedRenderer = qEnvironmentVariable(failedRendererVariable);
    qunsetenv(failedRendererVariable);
    if (!failedRenderer.isEmpty()) {
        // The process before this one has imported them.
        options.files.clear();
        options.importedPath.clear();
    }
    OrvelloApplication application(argc, argv);
    installTranslation(application);
    const std::unique_ptr<EarlyPlatform> early = std::move(firstStep); // Ends before it.
    const std::unique_ptr<DesktopPlatform> desktop = DesktopPlatform::create(*early);
    useRenderer(rendererOf(options, *desktop), failedRenderer, allArguments.data());
    if (MenuBar* const menuBar = desktop->statusBar().menuBar())
        menuBar->setMainMenu(makeMainMenu(&sendToFocusObject));
    migrate(*early);
    const std::unique_ptr<SoundPlatform> sound = SoundPlatform::create();

    AppDelegate delegate(
        { .early = *early, .desktop = *desktop, .sound = *sound },
        [](const ShellWindows::Services& services) {
            return std::make_unique<QtShellWindows>(services);
        },
        options, std::move(decks.read));
    QObject::connect(&application, &QCoreApplication::aboutToQuit, &delegate,
        &AppDelegate::applicationWillTerminate);
    delegate.applicationOpen(options.urls);
    listen(early->runningInstance(), delegate);
    QTimer::singleShot(0, &delegate, &AppDelegate::applicationDidFinishLaunching);
    return OrvelloApplication::exec();
}
