#pragma once

#include "Tests/Gallery/Scene.h"

namespace Orvello::Gallery {

/// Every scene in the language of the sources.
Scenes windowScenes();

/// Every scene, in the order of the contact sheet, the fullest ones in other languages too. A
/// window adds its own in a file of its own.
Scenes allScenes();

Scenes prompterScenes();
Scenes settingsScenes();
Scenes onboardingScenes();
Scenes libraryScenes();

} // namespace Orvello::Gallery
