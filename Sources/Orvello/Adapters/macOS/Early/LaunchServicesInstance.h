#pragma once

#include "Orvello/Adapters/Portable/OpenedUrls.h"
#include "Orvello/Platform/Early/RunningInstance.h"

#include <optional>

namespace Orvello {

/// The system starts an application once, and tells the one that runs what else is asked of it.
class LaunchServicesInstance final : public RunningInstance {
public:
    [[nodiscard]] Outcome claim(const ProgramStart& start) override;

    /// A second start is nothing: the menu bar has the menu.
    void listen(Handlers handlers) override;
    void release() override { }

private:
    std::optional<OpenedUrls> m_openedUrls;
};

} // namespace Orvello
