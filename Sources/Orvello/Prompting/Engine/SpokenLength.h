#pragma once

#include <QStringView>

namespace Orvello {

/// How long a text is for whoever reads it aloud: in words where words are written apart, and in
/// characters where they are not, as in Chinese and Japanese.
struct SpokenLength {
    qsizetype words = 0; ///< Runs with a letter or a digit in them.
    qsizetype characters = 0; ///< Of the scripts without spaces.

    [[nodiscard]] static SpokenLength of(QStringView text);

    qsizetype units() const { return words + characters; }
    bool isByCharacters() const { return characters > words; }

    friend bool operator==(const SpokenLength&, const SpokenLength&) = default;
};

} // namespace Orvello
