#pragma once

#include "Orvello/Shell/Commands/Menu.h"

#include <functional>
#include <memory>

namespace Orvello {

/// Sends an editing command, such as "selectAll", to whatever has the keyboard in this program.
using EditingTarget = std::function<void(const char* command)>;

/// The program's main menu: editing alone, so that the standard keys work in its text fields.
[[nodiscard]] std::unique_ptr<Menu> makeMainMenu(const EditingTarget& sendToFirstResponder);

/// Calls the command of that name on the object with the keyboard focus, if it has one.
void sendToFocusObject(const char* command);

} // namespace Orvello
