#pragma once

#include "Orvello/Platform/Early/Folders.h"

namespace Orvello {

/// The folders of the XDG base directories.
class XdgFolders final : public Folders {
public:
    QString applicationSupport() const override; ///< $XDG_DATA_HOME, else ~/.local/share.
    QString configuration() const; ///< $XDG_CONFIG_HOME, else ~/.config.
};

} // namespace Orvello
