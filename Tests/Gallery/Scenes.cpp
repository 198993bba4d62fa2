#include "Tests/Gallery/Scenes.h"

namespace Orvello::Gallery {

Scenes allScenes()
{
    Scenes scenes;
    scenes += prompterScenes();
    scenes += settingsScenes();
    scenes += onboardingScenes();
    scenes += libraryScenes();
    return scenes;
}

} // namespace Orvello::Gallery
