#pragma once

#include "Orvello/Platform/Desktop/UpdateUserDriver.h"

#include <QCoreApplication>
#include <QMessageBox>
#include <QPointer>

namespace Orvello {

/// The updater's questions as small windows. They open without taking the keyboard, because the
/// user may be presenting; whoever asked for a check gets them to the front.
class UpdateDialogs final : public UpdateUserDriver {
    Q_DECLARE_TR_FUNCTIONS(Orvello::UpdateDialogs)

public:
    explicit UpdateDialogs(QString currentVersion); ///< For people.
    ~UpdateDialogs() override;

    void askPermission(std::function<void(bool)> answer) override;
    void showUpdate(const UpdateItem& item, std::function<void(UpdateChoice)> answer) override;
    void bringToFront() override;
    void showOutcome(const QString& text) override;

private:
    const QString m_currentVersion;
    QPointer<QMessageBox> m_permission;
    QPointer<QMessageBox> m_dialog; ///< An update or an outcome.
};

} // namespace Orvello
