#pragma once

#include "Orvello/Foundation/TextEdit.h"

#include <QUuid>

#include <optional>

namespace Orvello {

/// What happened to the list of scripts: exactly one of them came, went, or was edited.
struct LibraryChange {
    enum class Kind { Inserted, Removed, Edited };

    Kind kind = Kind::Edited;
    qsizetype row = 0; ///< Of an inserted or edited script; where a removed one was.
    QUuid id = {};
    bool isOtherTitle = false; ///< For an edit.
    std::optional<TextEdit> body = {}; ///< For an edit, where the body differs if it does.

    friend bool operator==(const LibraryChange&, const LibraryChange&) = default;
};

} // namespace Orvello
