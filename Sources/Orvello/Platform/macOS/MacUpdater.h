#pragma once

#include "Orvello/Platform/Updater.h"

#include <memory>

namespace Orvello {

/// Sparkle, or what stands in for it in a build without Sparkle. CMake chooses.
std::unique_ptr<Updater> makeMacUpdater();

} // namespace Orvello
