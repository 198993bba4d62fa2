#pragma once

#include "Orvello/Platform/Desktop/UpdateUserDriver.h"

#include <QStringList>

#include <utility>

namespace Orvello::Testing {

/// A user whose answers a test gives.
class FakeUpdateUserDriver final : public UpdateUserDriver {
public:
    void askPermission(std::function<void(bool)> answer) override
    {
        ++permissionQuestions;
        answerPermission = std::move(answer);
    }
    void showUpdate(const UpdateItem& item, std::function<void(UpdateChoice)> answer) override
    {
        offered.append(item.displayVersion);
        choose = std::move(answer);
    }
    void bringToFront() override { ++broughtToFront; }
    void showOutcome(const QString& text) override { outcomes.append(text); }

    int permissionQuestions = 0;
    std::function<void(bool)> answerPermission;
    QStringList offered;
    std::function<void(UpdateChoice)> choose;
    int broughtToFront = 0;
    QStringList outcomes;
};

} // namespace Orvello::Testing
