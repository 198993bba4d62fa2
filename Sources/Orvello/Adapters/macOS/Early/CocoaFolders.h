#pragma once

#include "Orvello/Platform/Early/Folders.h"

namespace Orvello {

class CocoaFolders final : public Folders {
public:
    QString applicationSupport() const override; ///< ~/Library/Application Support.
};

} // namespace Orvello
