#pragma once

#include <QString>

namespace Orvello {

/// Where the system wants a program's files.
class Folders {
public:
    virtual ~Folders() = default;

    /// The user's application-support folder, absolute and without the product's own folder.
    /// Computed afresh at every call; nothing is created.
    virtual QString applicationSupport() const = 0;
};

} // namespace Orvello
