#include "Tests/Gallery/Scenes.h"

#include "Tests/Gallery/PseudoLanguage.h"

namespace Orvello::Gallery {

using namespace Qt::StringLiterals;

namespace {

/// What shows every text of a window, or its whole layout.
const QStringList fullest {
    u"Prompter: everything at once"_s,
    u"Settings: light"_s,
    u"Welcome tour: welcome"_s,
    u"Welcome tour: privacy, with Zoom"_s,
    u"Welcome tour: setup"_s,
    u"Scripts: a deck"_s,
    u"Scripts: import failed"_s,
};

} // namespace

Scenes windowScenes()
{
    Scenes scenes;
    scenes += prompterScenes();
    scenes += settingsScenes();
    scenes += onboardingScenes();
    scenes += libraryScenes();
    return scenes;
}

Scenes allScenes()
{
    Scenes scenes;
    for (const Scene& scene : windowScenes()) {
        scenes.append(scene);
        if (fullest.contains(scene.name)) {
            scenes.append(inPseudoLanguage(scene));
            scenes.append(mirrored(scene));
        }
    }
    return scenes;
}

} // namespace Orvello::Gallery
