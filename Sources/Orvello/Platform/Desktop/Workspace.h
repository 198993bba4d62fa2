#pragma once

#include <QList>
#include <QString>

#include <optional>

namespace Orvello {

/// One application that the user is running. On a system without bundle identifiers the adapter
/// gives the applications that the product knows the identifiers the product knows them by.
struct RunningApplication {
    std::optional<QString> bundleIdentifier;
    std::optional<QString> localizedName;

    friend bool operator==(const RunningApplication&, const RunningApplication&) = default;
};

/// The user's applications. Main thread. What the system does not say is left out.
class Workspace {
public:
    virtual ~Workspace() = default;

    /// In the order in which the system lists them.
    virtual QList<RunningApplication> runningApplications() const = 0;

    /// The one that receives the user's key presses, if any.
    virtual std::optional<RunningApplication> frontmostApplication() const = 0;

    /// Whether the user could start this application, running or not.
    virtual bool isInstalled(const QString& bundleIdentifier) const = 0;
};

} // namespace Orvello
