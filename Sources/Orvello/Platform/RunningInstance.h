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

    /// Whether this process is the one, which it stays until it ends. Otherwise the one that runs
    /// has been told of these arguments (the command line's, without the program's name), and this
    /// process has nothing left to do. Before the application object is made; at most once.
    [[nodiscard]] virtual bool claim(const QStringList& arguments) = 0;

    /// From now on the handlers run on the main loop. Requests that came earlier come first. After
    /// the application object is made; once.
    virtual void listen(Handlers handlers) = 0;
};

} // namespace Orvello
