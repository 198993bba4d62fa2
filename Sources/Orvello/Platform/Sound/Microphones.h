#pragma once

#include <QList>
#include <QString>

#include <functional>

namespace Orvello {

/// The microphones that there are, and how it stands with the one that is heard. Main thread; never
/// waits for the sound system.
class Microphones {
public:
    struct Microphone {
        QString identifier; ///< The same whenever it is connected.
        QString name; ///< For people.

        friend bool operator==(const Microphone&, const Microphone&) = default;
    };

    /// Why nothing can be heard.
    enum class Trouble {
        None,
        NoAnswer, ///< The sound system is away, or says nothing.
        Refused, ///< It lets this program hear nothing.
        NoMicrophone,
        Muted,
        Withheld, ///< The microphone is there and delivers nothing.
    };

    struct State {
        /// Whether it is known that there is a microphone. Who starts to listen gives it a moment.
        bool isReady = true;
        QList<Microphone> choices = {}; ///< Empty where this program cannot choose.
        QString heard = {}; ///< The name of the one that is heard; empty when there is none.
        Trouble trouble = Trouble::None;

        friend bool operator==(const State&, const State&) = default;
    };

    virtual ~Microphones() = default;

    virtual State state() = 0;

    /// Which one is heard from now on, by its identifier; empty for the system's choice. While it
    /// is not connected, the system's choice takes its place.
    virtual void choose(const QString& identifier) = 0;

    /// `changed` is called on the main loop after state() has changed. One at a time; none ends it.
    virtual void setObserver(std::function<void()> changed) = 0;
};

} // namespace Orvello
