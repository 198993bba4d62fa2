#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QUrl>
#include <QVariantMap>

#include <functional>

namespace Orvello {

/// What a start of the program was given.
struct ProgramStart {
    QStringList arguments; ///< Without the program's name.
    QString directory; ///< Where relative paths start.
    QVariantMap environment; ///< The product's own variables, those that are set.
    friend bool operator==(const ProgramStart&, const ProgramStart&) = default;
};

/// Makes sure that the program runs once on a display, and hears what the system and later starts
/// ask of the running one. Main thread.
class RunningInstance {
public:
    /// Called once, with what the running program could not do, in words for the user.
    using Answer = std::function<void(const QStringList& refusals)>;

    struct Handlers {
        std::function<void(const QList<QUrl>&)> opened; ///< Addresses that the system passes on.
        std::function<void(const ProgramStart&, const Answer&)> startedAgain;
    };

    enum class Claim {
        Granted, ///< This process is the one that runs, until it ends.
        HandedOver, ///< The running one has done what it could of the request.
        Unanswered, ///< One is running, but cannot be asked.
    };
    struct Outcome {
        Claim claim = Claim::Granted;
        QStringList messages; ///< What the user must be told about it.
    };

    virtual ~RunningInstance() = default;

    /// Tries to become the one that runs. A process that cannot has nothing left to do. Before the
    /// application object is made; at most once.
    [[nodiscard]] virtual Outcome claim(const ProgramStart& start) = 0;

    /// From now on the handlers run on the main loop. Requests that came earlier come first. After
    /// the application object is made; once.
    virtual void listen(Handlers handlers) = 0;

    /// Removes every trace by which this process can be found. For an end without destructors.
    virtual void release() = 0;
};

} // namespace Orvello
