#pragma once

#include "Orvello/Platform/Desktop/Updater.h"

#include <QString>

#include <memory>
#include <optional>

namespace Orvello {

/// Sparkle, or what stands in for it in a build without Sparkle. CMake chooses.
std::unique_ptr<Updater> makeMacUpdater();

/// The feed address in the bundle's Info.plist, if there is one.
std::optional<QString> feedOfBundle();

} // namespace Orvello
