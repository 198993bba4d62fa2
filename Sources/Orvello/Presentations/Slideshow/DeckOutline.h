#pragma once

#include <QString>
#include <QStringList>

namespace Orvello {

struct Script;

/// What a presentation application tells about a deck without its notes.
struct DeckOutline {
    QString name; ///< The document's, with or without a file's extension.
    /// One for each slide, empty where it has none. An application that does not tell titles leaves
    /// all of them empty, or leaves them out.
    QStringList titles;

    /// Reads the printed text: the name, then, each after a record separator (U+001E), the titles.
    [[nodiscard]] static DeckOutline parse(const QString& output);

    friend bool operator==(const DeckOutline&, const DeckOutline&) = default;
};

/// How well a deck script's notes go with a deck. People rename scripts and files, and edit, add
/// and remove slides after an import, so neither name nor titles decide alone.
struct DeckLikeness {
    enum class Kind {
        Other, ///< Another deck's notes.
        Unknown, ///< Nothing tells them apart, and nothing says that they belong together.
        Alike, ///< Most slides have the same titles.
        Same, ///< They have the same name, and nothing speaks against it.
    };

    Kind kind = Kind::Other;
    double sharedTitles = 0; ///< The share of slides with a title that both have.

    [[nodiscard]] static DeckLikeness of(const Script& script, const DeckOutline& deck);

    friend auto operator<=>(const DeckLikeness&, const DeckLikeness&) = default;
};

} // namespace Orvello
