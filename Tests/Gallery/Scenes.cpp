#include "Tests/Gallery/Scenes.h"

namespace Orvello::Gallery {

Scenes allScenes()
{
    Scenes scenes;
    scenes += prompterScenes();
    return scenes;
}

} // namespace Orvello::Gallery
