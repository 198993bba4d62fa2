#pragma once

#include "Orvello/Platform/Workspace.h"

namespace Orvello {

class CocoaWorkspace final : public Workspace {
public:
    QList<RunningApplication> runningApplications() const override;
    std::optional<RunningApplication> frontmostApplication() const override;
};

} // namespace Orvello
