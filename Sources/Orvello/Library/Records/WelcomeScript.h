#pragma once

#include <QString>

namespace Orvello {

struct Facts;

/// The script that a new user finds in the library, in the user's language.
namespace WelcomeScript {

[[nodiscard]] QString title();
[[nodiscard]] QString body(const Facts& facts);

} // namespace WelcomeScript

} // namespace Orvello
