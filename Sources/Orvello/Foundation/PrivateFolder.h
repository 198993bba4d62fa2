#pragma once

#include <QString>

namespace Orvello {

/// Makes the folder and whatever is missing above it, for the user's eyes alone: nobody else may
/// enter what is made here. A folder that exists stays as it is. Returns whether there is one now.
bool makePrivateFolder(const QString& path);

} // namespace Orvello
