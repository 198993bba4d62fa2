#pragma once

#include <QString>

/// The script that a new user finds in the library.
namespace Orvello::WelcomeScript {

[[nodiscard]] QString title();
[[nodiscard]] QString body();

} // namespace Orvello::WelcomeScript
