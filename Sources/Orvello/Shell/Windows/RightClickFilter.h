#pragma once

#include <QObject>

#include <functional>

namespace Orvello {

/// Runs an action at each right click into a window.
class RightClickFilter final : public QObject {
    Q_OBJECT

public:
    RightClickFilter(QObject& window, std::function<void()> action); ///< `window` must outlive it.

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    const std::function<void()> m_action;
};

} // namespace Orvello
