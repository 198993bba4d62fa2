#pragma once

namespace Orvello {

/// Lets the user log out, restart and shut down: Qt refuses every request to quit, and then quits
/// by itself, which the system takes for a wish to stay. After the application object is made, and
/// before Qt's.
void agreeToLogOut();

} // namespace Orvello
