#pragma once

#include <QApplication>

#include <memory>
#include <vector>

class QMenuBar;

namespace Orvello {

class Menu;
class QtMenu;

/// The application object. It has no window of its own and no entry in task switchers; the last
/// window's closing does not end it.
class OrvelloApplication final : public QApplication {
    Q_OBJECT

public:
    OrvelloApplication(int& argumentCount, char** arguments);
    ~OrvelloApplication() override;

    /// Puts a menu into the system's menu bar.
    void setMainMenu(std::unique_ptr<Menu> menu);

protected:
    bool event(QEvent* event) override;

private:
    std::unique_ptr<Menu> m_mainMenu;
    std::vector<std::unique_ptr<QtMenu>> m_menus; ///< Those that open from the bar.
    std::unique_ptr<QMenuBar> m_menuBar;
};

} // namespace Orvello
