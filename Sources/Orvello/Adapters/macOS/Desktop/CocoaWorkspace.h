#pragma once

#include "Orvello/Platform/Desktop/Workspace.h"

namespace Orvello {

class CocoaWorkspace final : public Workspace {
public:
    QList<RunningApplication> runningApplications() const override;
    std::optional<RunningApplication> frontmostApplication() const override;
    bool isInstalled(const QString& bundleIdentifier) const override;
};

} // namespace Orvello
