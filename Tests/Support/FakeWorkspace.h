#pragma once

#include "Orvello/Platform/Desktop/Workspace.h"
#include "Tests/Support/Journal.h"

#include <QStringList>

namespace Orvello::Testing {

/// Has and runs what a test says it does.
class FakeWorkspace final : public Workspace {
public:
    QList<RunningApplication> runningApplications() const override { return running; }
    std::optional<RunningApplication> frontmostApplication() const override
    {
        note(journal, "frontmost application asked for");
        return frontmost;
    }
    bool isInstalled(const QString& bundleIdentifier) const override
    {
        return installed.contains(bundleIdentifier);
    }

    /// An application known by its identifier alone.
    static RunningApplication application(const QString& bundleIdentifier)
    {
        return { bundleIdentifier, std::nullopt };
    }

    Journal* journal = nullptr;
    QList<RunningApplication> running;
    std::optional<RunningApplication> frontmost;
    QStringList installed; ///< Bundle identifiers.
};

} // namespace Orvello::Testing
