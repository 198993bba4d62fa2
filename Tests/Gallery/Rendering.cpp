#include "Tests/Gallery/Rendering.h"

#include "Tests/Gallery/Measures.h"

#include <QImage>
#include <QQuickWindow>
#include <QTest>

#include <cstdio>

namespace Orvello::Gallery {

using namespace Qt::StringLiterals;

namespace {

/// What a scene may take to come to rest, in milliseconds: slices of layout, short transitions.
constexpr int settling = 150;

bool isBlank(const QImage& picture)
{
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixel(x, y) != picture.pixel(0, 0))
                return false;
        }
    }
    return true;
}

/// Says on standard error what is wrong with it.
QImage pictureOf(const Scene& scene, bool& isRight)
{
    const std::unique_ptr<Stage> stage = scene.make();
    QQuickWindow& window = stage->window();
    window.show();
    if (!QTest::qWaitForWindowExposed(&window))
        return {};
    stage->play();
    QTest::qWait(settling);
    const QImage picture = window.grabWindow();
    for (const QString& fault : faultsOf(window, picture)) {
        std::fprintf(stderr, "gallery: \"%s\": %s\n", qPrintable(scene.name), qPrintable(fault));
        isRight = false;
    }
    return picture;
}

} // namespace

QString pictureOf(const QDir& folder, qsizetype number)
{
    return folder.filePath(u"%1.png"_s.arg(number + 1, 2, 10, QChar(u'0')));
}

bool renderScenes(const Scenes& scenes, double scale, const QDir& folder)
{
    bool areRight = true;
    for (qsizetype i = 0; i < scenes.size(); ++i) {
        if (scenes[i].scale != scale)
            continue;
        const QImage picture = pictureOf(scenes[i], areRight);
        if (isBlank(picture) || !picture.save(pictureOf(folder, i))) {
            std::fprintf(stderr, "gallery: no picture of \"%s\"\n", qPrintable(scenes[i].name));
            return false;
        }
    }
    return areRight;
}

} // namespace Orvello::Gallery
