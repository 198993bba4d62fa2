#pragma once

#include "Orvello/Platform/Desktop/Updater.h"

#include <QString>

#include <functional>

namespace Orvello {

/// How an updater talks to the user: with windows that leave the program running, and that open
/// without taking the keyboard. Main thread.
class UpdateUserDriver {
public:
    virtual ~UpdateUserDriver() = default;

    /// Asks whether to look for updates regularly.
    virtual void askPermission(std::function<void(bool)> answer) = 0;

    /// Offers an update. Closing the window is an answer: Later.
    virtual void showUpdate(const UpdateItem& item, std::function<void(UpdateChoice)> answer) = 0;

    /// Brings a question that is still open to the front.
    virtual void bringToFront() = 0;

    /// Reports, in front, how a check that the user asked for ended.
    virtual void showOutcome(const QString& text) = 0;
};

} // namespace Orvello
