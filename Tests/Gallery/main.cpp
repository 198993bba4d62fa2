// Makes one picture of every window in every state, from real renders:
//
//     orvello-gallery INDEX.html [WORDS]   the scenes whose names contain the words, else all
//
// Beside the page a folder of its name holds the pictures one by one, and INDEX-1.png and so on are
// contact sheets of all of them. These are painted here; the windows are shown by one further
// process for each scale, on the display there is. What is wrong with a picture is said on standard
// error, and the exit status is 1.

#include "Tests/Gallery/ContactSheet.h"
#include "Tests/Gallery/Rendering.h"
#include "Tests/Gallery/Scenes.h"

#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QProcess>

#include <cstdio>
#include <set>

namespace {

using namespace Orvello;
using namespace Qt::StringLiterals;

constexpr auto renderSwitch = "--render";

Gallery::Scenes scenesNamed(const QString& words)
{
    Gallery::Scenes scenes = Gallery::allScenes();
    scenes.removeIf([&](const Gallery::Scene& scene) {
        return !scene.name.contains(words, Qt::CaseInsensitive);
    });
    return scenes;
}

/// orvello-gallery --render SCALE FOLDER WORDS
int render(int argc, char** argv)
{
    QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    const Gallery::Scenes scenes = scenesNamed(arguments.value(4));
    return Gallery::renderScenes(scenes, arguments.value(2).toDouble(), QDir(arguments.value(3)))
        ? 0
        : 1;
}

bool renderElsewhere(double scale, const QDir& folder, const QString& words)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"QT_SCALE_FACTOR"_s, QString::number(scale));
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.start(QCoreApplication::applicationFilePath(),
        { QLatin1StringView(renderSwitch), QString::number(scale), folder.path(), words });
    return process.waitForFinished(-1) && process.exitStatus() == QProcess::NormalExit
        && process.exitCode() == 0;
}

bool save(const Gallery::Scenes& scenes, const QDir& pictures, const QFileInfo& index)
{
    const QDir folder = index.absoluteDir();
    QStringList sheetNames;
    for (const QImage& sheet : Gallery::contactSheets(scenes, pictures)) {
        sheetNames.append(u"%1-%2.png"_s.arg(index.completeBaseName()).arg(sheetNames.size() + 1));
        if (!sheet.save(folder.filePath(sheetNames.last())))
            return false;
    }
    const QByteArray page = Gallery::indexPage(scenes, pictures.dirName(), sheetNames);
    QFile file(index.filePath());
    return file.open(QIODevice::WriteOnly) && file.write(page) == page.size();
}

int makeGallery(int argc, char** argv)
{
    // Only the renders need a display.
    const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    platform.isEmpty() ? qunsetenv("QT_QPA_PLATFORM") : qputenv("QT_QPA_PLATFORM", platform);

    const QString index = QGuiApplication::arguments().value(1);
    const QString words = QGuiApplication::arguments().value(2);
    const QFileInfo file(index);
    QDir folder(file.absoluteDir().filePath(file.completeBaseName()));
    folder.removeRecursively();
    const Gallery::Scenes scenes = scenesNamed(words);
    if (scenes.isEmpty() || !folder.mkpath(u"."_s)) {
        std::fprintf(stderr, "gallery: no scene to show, or no place to put it\n");
        return 1;
    }

    std::set<double> scales;
    for (const Gallery::Scene& scene : scenes)
        scales.insert(scene.scale);
    bool areRight = true;
    for (const double scale : scales)
        areRight = renderElsewhere(scale, folder, words) && areRight;
    return save(scenes, folder, file) && areRight ? 0 : 1;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 2) {
        std::fprintf(stderr, "Usage: orvello-gallery INDEX.html [WORDS]\n");
        return 2;
    }
    return QLatin1StringView(argv[1]) == QLatin1StringView(renderSwitch) ? render(argc, argv)
                                                                         : makeGallery(argc, argv);
}
