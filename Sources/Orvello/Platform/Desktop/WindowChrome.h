#pragma once

class QWindow;

namespace Orvello {

/// What the system draws around a window of the program. Main thread.
class WindowChrome {
public:
    virtual ~WindowChrome() = default;

    /// Gives all of the window to its content, dark as it is: no visible title, no bar of its own.
    /// For a window that has its size and has not been shown. Returns whether the system's close
    /// button stays, above the content's upper left corner; if not, the content needs its own.
    virtual bool hideTitleBar(QWindow& window) = 0;
};

} // namespace Orvello
