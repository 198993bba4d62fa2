#pragma once

#include "Orvello/Foundation/TextEdit.h"

#include <QUuid>

#include <optional>

namespace Orvello {

/// What happened to the list of scripts: exactly one of them came, went, moved, or
/// was edited.
struct LibraryChange {
    enum class Kind { Inserted, Removed, Moved, Edited };

    Kind kind = Kind::Edited;
    qsizetype row = 0; ///< Where the script is, or was before it went or moved.
    qsizetype newRow = 0; ///< For a move: where the script is now.
    QUuid id = {};
    bool hasNewTitle = false; ///< For an edit: the title changed.
    bool hasNewSlides = false; ///< For an edit: a deck was read anew.
    std::optional<TextEdit> body = {}; ///< For an edit that changed the body: where it differs.

    friend bool operator==(const LibraryChange&, const LibraryChange&) = default;
};

} // namespace Orvello
