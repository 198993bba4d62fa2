#pragma once

#include "Orvello/Library/Records/Script.h"

#include <optional>

namespace Orvello {

/// What a presentation application prints about the deck that is open in it: the document's name,
/// then, each after a record separator (U+001E), the slides; a slide is its title, a unit separator
/// (U+001F) and its notes.
struct DeckRecord {
    QString name;
    QList<SlideNote> slides; ///< In deck order, those without notes among them.

    /// Reads the printed text. An empty name becomes `fallbackName`. Nothing when there is no
    /// slide, or none that has notes.
    [[nodiscard]] static std::optional<DeckRecord> parse(
        const QString& output, const QString& fallbackName);
};

/// What PowerPoint prints about the file of its presentation: the name, whether it has no unsaved
/// changes, and the path, with unit separators (U+001F) between them.
struct DeckLocation {
    QString name; ///< "PowerPoint" when none was printed.
    bool isSaved = false;
    QString path; ///< Empty when none was printed.

    [[nodiscard]] static DeckLocation parse(const QString& output);

    /// The path, if it names a readable file in a format that the importer reads.
    [[nodiscard]] std::optional<QString> localDeck() const;
};

} // namespace Orvello
