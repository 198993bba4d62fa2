#pragma once

#include "Tests/Gallery/Scene.h"

namespace Orvello::Gallery {

/// Every scene, in the order of the contact sheet. A window adds its own in a file of its own.
Scenes allScenes();

Scenes prompterScenes();
Scenes settingsScenes();
Scenes onboardingScenes();
Scenes libraryScenes();

} // namespace Orvello::Gallery
