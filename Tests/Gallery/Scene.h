#pragma once

#include "Tests/Gallery/Wallpaper.h"

#include <QList>
#include <QString>

#include <functional>
#include <memory>

class QQuickWindow;

namespace Orvello::Gallery {

/// A real window of the program in some state, with everything that it shows.
class Stage {
public:
    virtual ~Stage() = default;

    /// Not shown yet, with the size it shall have.
    virtual QQuickWindow& window() = 0;

    /// Called once when the window is on screen and has its size: what can be done only then.
    virtual void play() { }
};

/// One picture of the contact sheet.
struct Scene {
    QString name; ///< "Prompter: countdown". What stands before the colon groups the scenes.
    std::function<std::unique_ptr<Stage>()> make;
    Wallpaper wallpaper = Wallpaper::None; ///< What a translucent window is seen in front of.
    double scale = 1; ///< Device pixels for each point.
};

using Scenes = QList<Scene>;

} // namespace Orvello::Gallery
