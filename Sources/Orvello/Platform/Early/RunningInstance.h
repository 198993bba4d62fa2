#pragma once

#include <QStringList>
#include <QUrl>

#include <functional>

namespace Orvello {

/// Sees to it that the user runs the program once, and hears what the system and later starts ask
/// of the one that runs. Main thread.
class RunningInstance {
public:
    struct Handlers {
        std::function<void(const QList<QUrl>&)> opened; ///< Addresses that the system passes on.
        /// The program was started once more, with these arguments.
        std::function<void(const QStringList&)> startedAgain;
    };

    virtual ~RunningInstance() = default;

    enum class Claim {
        Granted, ///< This process is the one, which it stays until it ends.
        HandedOver, ///< The one that runs has been told of the arguments.
        Unanswered, ///< One runs, and does not listen. The user has been told.
    };

    /// Tries to be the one. A process that is not has nothing left to do. `arguments` are the
    /// command line's, without the program's name. Before the application object is made; at most
    /// once.
    [[nodiscard]] virtual Claim claim(const QStringList& arguments) = 0;

    /// From now on the handlers run on the main loop. Requests that came earlier come first. After
    /// the application object is made; once.
    virtual void listen(Handlers handlers) = 0;
};

} // namespace Orvello
