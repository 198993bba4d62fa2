#pragma once

#include <QApplication>

namespace Orvello {

/// The application object. It has no window of its own and no entry in task switchers; the last
/// window's closing does not end it.
class OrvelloApplication final : public QApplication {
    Q_OBJECT

public:
    OrvelloApplication(int& argumentCount, char** arguments);

protected:
    bool event(QEvent* event) override;
};

} // namespace Orvello
