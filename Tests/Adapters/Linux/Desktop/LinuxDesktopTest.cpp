#include "Orvello/Adapters/Linux/Desktop/KnownApplications.h"
#include "Orvello/Adapters/Linux/Desktop/LinuxWorkspace.h"
#include "Orvello/Adapters/Linux/Desktop/X11WindowServer.h"
#include "Orvello/Voice/MeetingApplications.h"
#include "Tests/Support/PrivateXServer.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;
using namespace std::string_view_literals;

constexpr std::string_view slideshowClass = "libreoffice\0LibreOffice 7.4\0"sv;
constexpr std::string_view impressClass = "libreoffice\0libreoffice-impress\0"sv;
constexpr std::string_view writerClass = "libreoffice\0libreoffice-writer\0"sv;
constexpr std::string_view browserClass = "Navigator\0firefox-esr\0"sv;

/// Over an X server on which the test plays the window manager.
class X11DesktopTest : public ::testing::Test {
protected:
    X11DesktopTest()
    {
        EXPECT_TRUE(server.isRunning());
        windows = std::make_unique<X11Windows>();
    }

    QStringList owners() const
    {
        QStringList names;
        const auto onScreen = X11WindowServer(*windows).windowsOnScreen();
        EXPECT_TRUE(onScreen.has_value());
        for (const WindowOnScreen& window : onScreen.value_or(QList<WindowOnScreen>()))
            names.append(window.ownerName);
        return names;
    }

    std::optional<RunningApplication> frontmost() const
    {
        return LinuxWorkspace(*windows).frontmostApplication();
    }

    Testing::PrivateXServer server;
    std::unique_ptr<X11Windows> windows;
};

TEST_F(X11DesktopTest, knowsNothingWithoutAWindowManager)
{
    EXPECT_EQ(X11WindowServer(*windows).windowsOnScreen(), std::nullopt);
    EXPECT_EQ(frontmost(), std::nullopt);
}

TEST_F(X11DesktopTest, listsWindowsFromTheTopWithTheirOwners)
{
    const auto bottom = server.addWindow(0, 0, 100, 100, browserClass);
    const auto middle = server.addWindow(0, 0, 100, 100, writerClass);
    const auto top = server.addWindow(0, 0, 1280, 800, slideshowClass);
    server.publishStacking({ bottom, middle, top });

    EXPECT_EQ(owners(),
        QStringList({ u"LibreOffice Impress"_s, u"libreoffice-writer"_s, u"firefox-esr"_s }));
}

TEST_F(X11DesktopTest, givesBoundsInRootCoordinates)
{
    const auto frame = server.addWindow(30, 40, 500, 400, ""sv);
    const auto client = server.addWindow(3, 20, 494, 377, browserClass, frame);
    server.publishStacking({ client });

    EXPECT_EQ(
        X11WindowServer(*windows).windowsOnScreen()->first().bounds, QRectF(33, 60, 494, 377));
}

TEST_F(X11DesktopTest, leavesOutIconifiedWindowsAndTheDesktop)
{
    const auto desktop = server.addWindow(0, 0, 1280, 800, "desktop\0Desktop\0"sv);
    const auto iconified = server.addWindow(0, 0, 100, 100, writerClass);
    const auto window = server.addWindow(0, 0, 100, 100, browserClass);
    server.markAsDesktop(desktop);
    server.unmap(iconified);
    server.publishStacking({ desktop, iconified, window });

    EXPECT_EQ(owners(), QStringList({ u"firefox-esr"_s }));
}

TEST_F(X11DesktopTest, skipsWindowsThatAreGone)
{
    const auto window = server.addWindow(0, 0, 100, 100, browserClass);
    server.publishStacking({ window, 0x7ffffff });
    server.publishActive(0x7ffffff);

    EXPECT_EQ(owners(), QStringList({ u"firefox-esr"_s }));
    EXPECT_EQ(frontmost(), std::nullopt);
}

TEST_F(X11DesktopTest, survivesWindowsThatSayNothingOrNonsense)
{
    const auto silent = server.addWindow(0, 0, 100, 100, ""sv);
    const auto half = server.addWindow(0, 0, 100, 100, "libreoffice"sv);
    server.publishStacking({ silent, half });

    EXPECT_EQ(owners(), QStringList({ u"LibreOffice Impress"_s, QString() }));
}

TEST_F(X11DesktopTest, tellsASlideshowFromADeckThatIsEdited)
{
    const auto editor = server.addWindow(0, 0, 1280, 800, impressClass);
    const auto slideshow = server.addWindow(0, 0, 1280, 800, slideshowClass);
    server.publishStacking({ editor, slideshow });

    EXPECT_EQ(owners(), QStringList({ u"LibreOffice Impress"_s, u"libreoffice-impress"_s }));
}

TEST_F(X11DesktopTest, takesImpressForFrontmostByAnyOfItsWindows)
{
    const auto slideshow = server.addWindow(0, 0, 1280, 800, slideshowClass);
    const auto editor = server.addWindow(0, 0, 100, 100, impressClass);
    const auto writer = server.addWindow(0, 0, 100, 100, writerClass);
    const auto browser = server.addWindow(0, 0, 100, 100, browserClass);

    server.publishActive(slideshow);
    EXPECT_EQ(frontmost()->bundleIdentifier, u"libreoffice-impress"_s);
    server.publishActive(editor);
    EXPECT_EQ(frontmost()->bundleIdentifier, u"libreoffice-impress"_s);
    server.publishActive(writer);
    EXPECT_EQ(frontmost()->bundleIdentifier, std::nullopt);
    server.publishActive(browser);
    EXPECT_EQ(frontmost()->bundleIdentifier, std::nullopt);
    EXPECT_EQ(frontmost()->localizedName, u"firefox-esr"_s);
    server.publishActive(0);
    EXPECT_EQ(frontmost(), std::nullopt);
}

TEST_F(X11DesktopTest, knowsTheScreens)
{
    EXPECT_EQ(X11WindowServer(*windows).screenSizes(), QList<QSizeF>({ QSizeF(1280, 800) }));
}

TEST_F(X11DesktopTest, findsNothingOnceTheDisplayIsGone)
{
    server.publishStacking({ server.addWindow(0, 0, 100, 100, browserClass) });
    server.stop();

    EXPECT_EQ(X11WindowServer(*windows).windowsOnScreen(), std::nullopt);
    EXPECT_TRUE(X11WindowServer(*windows).screenSizes().isEmpty());
    EXPECT_EQ(frontmost(), std::nullopt);
}

TEST(X11WindowsTest, findsNothingWithoutADisplay)
{
    const QByteArray display = qgetenv("DISPLAY");
    qputenv("DISPLAY", ":4095");
    const X11Windows windows;
    qputenv("DISPLAY", display);

    EXPECT_EQ(windows.activeWindowClass(), std::nullopt);
    EXPECT_FALSE(windows.fromTop().has_value());
    EXPECT_TRUE(windows.monitorSizes().isEmpty());
}

/// Over a process table made of files.
class RunningApplicationsTest : public ::testing::Test {
protected:
    void addProcess(const QString& id, const QByteArray& name, char state = 'S')
    {
        ASSERT_TRUE(QDir(folder.path()).mkpath(id));
        write(id + u"/comm"_s, name + '\n');
        write(id + u"/stat"_s, id.toUtf8() + " (" + name + ") " + state + " 1 1 1 0\n");
    }

    void write(const QString& path, const QByteArray& content)
    {
        QFile file(folder.filePath(path));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    QStringList runningIdentifiers() const
    {
        QStringList identifiers;
        const LinuxWorkspace workspace(windows, folder.path().toStdString());
        for (const RunningApplication& application : workspace.runningApplications())
            identifiers.append(application.bundleIdentifier.value_or(u"-"_s));
        identifiers.sort();
        return identifiers;
    }

    X11Windows windows;
    QTemporaryDir folder;
};

TEST_F(RunningApplicationsTest, mapsProgramsToTheIdentifiersOfTheProduct)
{
    for (const char* name : { "zoom", "teams-for-linux", "teams", "CiscoCollabHost", "slack",
             "Discord", "skypeforlinux", "soffice.bin" })
        addProcess(QString::number(100 + qHash(QByteArray(name)) % 100000), name);

    EXPECT_EQ(runningIdentifiers(),
        QStringList({ u"Cisco-Systems.Spark"_s, u"com.hnc.Discord"_s, u"com.microsoft.teams"_s,
            u"com.microsoft.teams2"_s, u"com.skype.skype"_s, u"com.tinyspeck.slackmacgap"_s,
            u"libreoffice-impress"_s, u"us.zoom.xos"_s }));
}

TEST_F(RunningApplicationsTest, namesTheMeetingApplications)
{
    for (const char* name : { "zoom", "teams-for-linux", "teams", "CiscoCollabHost", "webex",
             "slack", "Discord", "discord", "skypeforlinux" }) {
        const auto application = KnownApplications::withProcessName(name);
        ASSERT_TRUE(application) << name;
        EXPECT_TRUE(MeetingApplications::contain(*application->bundleIdentifier)) << name;
        EXPECT_FALSE(application->localizedName->isEmpty()) << name;
    }
}

TEST_F(RunningApplicationsTest, listsAnApplicationOfManyProcessesOnce)
{
    addProcess(u"10"_s, "slack");
    addProcess(u"11"_s, "slack");
    addProcess(u"12"_s, "bash");

    EXPECT_EQ(runningIdentifiers(), QStringList({ u"com.tinyspeck.slackmacgap"_s }));
}

TEST_F(RunningApplicationsTest, ignoresWhatIsNoProcess)
{
    addProcess(u"self"_s, "zoom");
    addProcess(u"12a"_s, "zoom");
    addProcess(u"99999999999999999999999999999999"_s, "zoom");
    addProcess(u"13"_s, "zoomed");
    ASSERT_TRUE(QDir(folder.path()).mkpath(u"14"_s));

    EXPECT_EQ(runningIdentifiers(), QStringList());
}

TEST_F(RunningApplicationsTest, listsNothingWithoutAProcessTable)
{
    EXPECT_TRUE(LinuxWorkspace(windows, "/nonexistent").runningApplications().isEmpty());
}

TEST_F(RunningApplicationsTest, noticesThatAYoungProcessExecutesItsProgram)
{
    addProcess(u"10"_s, "oosplash");
    const LinuxWorkspace workspace(windows, folder.path().toStdString());
    EXPECT_TRUE(workspace.runningApplications().isEmpty());

    addProcess(u"10"_s, "soffice.bin");
    EXPECT_EQ(workspace.runningApplications().size(), 1);
}

TEST_F(RunningApplicationsTest, noticesAnotherProgramInAnOldProcessWithinARound)
{
    addProcess(u"10"_s, "bash");
    const LinuxWorkspace workspace(windows, folder.path().toStdString());
    for (unsigned scan = 0; scan < 100; ++scan)
        EXPECT_TRUE(workspace.runningApplications().isEmpty());

    addProcess(u"10"_s, "zoom");
    bool isNoticed = false;
    for (unsigned scan = 0; scan < ProcessTable::scansPerRound; ++scan)
        isNoticed = !workspace.runningApplications().isEmpty();
    EXPECT_TRUE(isNoticed);
}

TEST_F(RunningApplicationsTest, forgetsAProcessThatEnds)
{
    addProcess(u"10"_s, "zoom");
    const LinuxWorkspace workspace(windows, folder.path().toStdString());
    for (unsigned scan = 0; scan < 10; ++scan)
        EXPECT_EQ(workspace.runningApplications().size(), 1);

    ASSERT_TRUE(QDir(folder.filePath(u"10"_s)).removeRecursively());
    EXPECT_TRUE(workspace.runningApplications().isEmpty());
    addProcess(u"10"_s, "bash");
    EXPECT_TRUE(workspace.runningApplications().isEmpty());
}

TEST_F(RunningApplicationsTest, leavesOutAProcessThatHasEndedUnnoticedByItsParent)
{
    addProcess(u"10"_s, "zoom");
    const LinuxWorkspace workspace(windows, folder.path().toStdString());
    for (unsigned scan = 0; scan < 10; ++scan)
        EXPECT_EQ(workspace.runningApplications().size(), 1);

    addProcess(u"10"_s, "zoom", 'Z');
    EXPECT_TRUE(workspace.runningApplications().isEmpty());
    addProcess(u"11"_s, "slack", 'Z');
    EXPECT_TRUE(workspace.runningApplications().isEmpty());
}

TEST_F(RunningApplicationsTest, noticesAtOnceThatAKnownProcessExecutesAnotherProgram)
{
    addProcess(u"10"_s, "zoom");
    const LinuxWorkspace workspace(windows, folder.path().toStdString());
    for (unsigned scan = 0; scan < 10; ++scan)
        EXPECT_EQ(workspace.runningApplications().size(), 1);

    addProcess(u"10"_s, "bash");
    EXPECT_TRUE(workspace.runningApplications().isEmpty());
}

/// Over folders with desktop entries.
class InstalledApplicationsTest : public ::testing::Test {
protected:
    void addFile(const QString& name)
    {
        const QString path = folder.filePath(name);
        ASSERT_TRUE(QDir().mkpath(QFileInfo(path).path()));
        ASSERT_TRUE(QFile(path).open(QIODevice::WriteOnly));
    }

    bool hasZoom() const
    {
        const LinuxWorkspace workspace(
            windows, "/proc", { folder.filePath(u"system"_s), folder.filePath(u"user"_s) });
        return workspace.isInstalled(u"us.zoom.xos"_s);
    }

    X11Windows windows;
    QTemporaryDir folder;
};

TEST_F(InstalledApplicationsTest, knowsZoomByTheDesktopEntryOfItsPackage)
{
    EXPECT_FALSE(hasZoom());

    addFile(u"user/zoom.txt"_s);
    EXPECT_FALSE(hasZoom());
    addFile(u"user/Zoom.desktop"_s);
    EXPECT_TRUE(hasZoom());
}

TEST_F(InstalledApplicationsTest, knowsZoomByItsFlatpak)
{
    addFile(u"system/us.zoom.Zoom.desktop"_s);

    EXPECT_TRUE(hasZoom());
}

TEST_F(InstalledApplicationsTest, knowsNoOtherApplicationByDesktopEntries)
{
    addFile(u"system/Zoom.desktop"_s);
    const LinuxWorkspace workspace(windows, "/proc", { folder.filePath(u"system"_s) });

    EXPECT_FALSE(workspace.isInstalled(u"com.example.other"_s));
    EXPECT_FALSE(workspace.isInstalled(QString()));
}

TEST_F(InstalledApplicationsTest, looksWhereFlatpakPutsItsEntries)
{
    EXPECT_TRUE(LinuxWorkspace::desktopEntryFolders().contains(
        u"/var/lib/flatpak/exports/share/applications"_s));
    EXPECT_TRUE(LinuxWorkspace::desktopEntryFolders().contains(u"/usr/share/applications"_s));
}

TEST_F(RunningApplicationsTest, seesARealProcess)
{
    const QString program = folder.filePath(u"teams-for-linux"_s);
    ASSERT_TRUE(QFile::copy(u"/bin/sleep"_s, program));
    const LinuxWorkspace workspace(windows);
    const RunningApplication teams { u"com.microsoft.teams2"_s, u"Microsoft Teams"_s };

    QProcess process;
    process.start(program, { u"100"_s });
    ASSERT_TRUE(process.waitForStarted());
    EXPECT_TRUE(workspace.runningApplications().contains(teams));

    process.kill();
    process.waitForFinished();
    EXPECT_FALSE(workspace.runningApplications().contains(teams));
}

} // namespace
} // namespace Orvello
