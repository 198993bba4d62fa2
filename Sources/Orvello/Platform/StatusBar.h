#pragma once

#include <functional>

namespace Orvello {

/// Where the desktop shows the items of programs that run in the background. Main thread; made
/// after the application object.
class StatusBar {
public:
    virtual ~StatusBar() = default;

    /// Whether the bar belongs to the system's menu bar: it is always there, opens the menu of an
    /// item at a click without the program's doing, and has a main menu for each program. Other
    /// bars leave the opening to the program, and may be missing.
    virtual bool isPartOfMenuBar() const = 0;

    /// Tells whether there is a bar: once, as soon as that is known, and then each time one comes
    /// or goes. Called once.
    virtual void observe(std::function<void(bool isThere)> changed) = 0;
};

} // namespace Orvello
