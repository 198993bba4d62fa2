#pragma once

#include "Orvello/Shell/Commands/ShellWindows.h"
#include "Orvello/Shell/Windows/QtMenu.h"

#include <memory>

namespace Orvello {

/// The program's windows, and its status item.
class QtShellWindows final : public ShellWindows {
public:
    explicit QtShellWindows(const Services& services);
    ~QtShellWindows() override;

    std::unique_ptr<ShellWindow> makeLibrary() override;
    std::unique_ptr<ShellWindow> makeSettings() override;
    std::unique_ptr<ShellWindow> makeOnboarding(std::function<void()> onFinish) override;
    std::unique_ptr<StatusItem> makeStatusItem(Menu& menu) override;
    void popUp(Menu& menu) override;

private:
    const Services m_services;
    std::unique_ptr<QtMenu> m_popUp; ///< The one that was opened last.
};

} // namespace Orvello
