#pragma once

#include "Orvello/Foundation/TextEdit.h"

#include <QUuid>

#include <optional>

namespace Orvello {

/// What happened to the list of scripts: exactly one of them came, went, or was edited.
struct LibraryChange {
    enum class Kind { Inserted, Removed, Edited };

    Kind kind = Kind::Edited;
    qsizetype row = 0; ///< Where the script is, or was before it was removed.
    QUuid id = {};
    bool hasNewTitle = false; ///< For an edit: the title changed.
    std::optional<TextEdit> body = {}; ///< For an edit that changed the body: where it differs.

    friend bool operator==(const LibraryChange&, const LibraryChange&) = default;
};

} // namespace Orvello
