#include "Tests/Gallery/Rendering.h"

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

QImage pictureOf(const Scene& scene)
{
    const std::unique_ptr<Stage> stage = scene.make();
    QQuickWindow& window = stage->window();
    window.show();
    if (!QTest::qWaitForWindowExposed(&window))
        return {};
    stage->play();
    QTest::qWait(settling);
    return window.grabWindow();
}

} // namespace

QString pictureOf(const QDir& folder, qsizetype number)
{
    return folder.filePath(u"%1.png"_s.arg(number + 1, 2, 10, QChar(u'0')));
}

bool renderScenes(const Scenes& scenes, double scale, const QDir& folder)
{
    for (qsizetype i = 0; i < scenes.size(); ++i) {
        if (scenes[i].scale != scale)
            continue;
        const QImage picture = pictureOf(scenes[i]);
        if (isBlank(picture) || !picture.save(pictureOf(folder, i))) {
            std::fprintf(stderr, "gallery: no picture of \"%s\"\n", qPrintable(scenes[i].name));
            return false;
        }
    }
    return true;
}

} // namespace Orvello::Gallery
