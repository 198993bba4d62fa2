#pragma once

#include "Orvello/Platform/Workspace.h"
#include "Tests/Support/Journal.h"

namespace Orvello::Testing {

/// Runs what a test says it runs.
class FakeWorkspace final : public Workspace {
public:
    QList<RunningApplication> runningApplications() const override { return running; }
    std::optional<RunningApplication> frontmostApplication() const override
    {
        note(journal, "frontmost application asked for");
        return frontmost;
    }

    /// An application known by its identifier alone.
    static RunningApplication application(const QString& bundleIdentifier)
    {
        return { bundleIdentifier, std::nullopt };
    }

    Journal* journal = nullptr;
    QList<RunningApplication> running;
    std::optional<RunningApplication> frontmost;
};

} // namespace Orvello::Testing
