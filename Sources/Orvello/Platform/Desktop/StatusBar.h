#pragma once

#include <functional>

namespace Orvello {

class MenuBar;

/// Where the desktop shows the items of programs that run in the background. Main thread; made
/// after the application object.
class StatusBar {
public:
    virtual ~StatusBar() = default;

    /// The system's menu bar, if this bar is a part of it. Such a bar is always there and makes the
    /// items itself. Null for other bars, which leave that to the toolkit and may be missing.
    virtual MenuBar* menuBar() = 0;

    /// Reports whether there is a bar: once, as soon as that is known, and then each time one comes
    /// or goes. Called once.
    virtual void observe(std::function<void(bool isThere)> changed) = 0;
};

} // namespace Orvello
