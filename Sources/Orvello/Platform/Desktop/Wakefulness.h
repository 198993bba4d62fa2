#pragma once

namespace Orvello {

/// Keeps the system from saving power on what the user is looking at. Main thread.
class Wakefulness {
public:
    enum class Need {
        None, ///< The system may do as it likes.
        Timers, ///< The program's timers keep their time, whoever is in front.
        Display, ///< Moreover the display stays on: the user reads and touches nothing.
    };

    virtual ~Wakefulness() = default;

    /// What is needed from now on, until the next call or the end of the process.
    virtual void hold(Need need) = 0;
};

} // namespace Orvello
