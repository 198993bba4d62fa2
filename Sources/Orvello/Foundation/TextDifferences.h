#pragma once

#include "Orvello/Foundation/TextEdit.h"

#include <QString>

#include <vector>

namespace Orvello {

/// Edits of one text that do not overlap, in order. Each is placed as in the text before all of
/// them.
using TextDifferences = std::vector<TextEdit>;

/// Where one text differs from another, found by the lines that both have once: exact at the ends,
/// and never more than what lies between two such lines.
[[nodiscard]] TextDifferences differencesBetween(const QString& before, const QString& after);

/// Where a character of the text before has gone. One that was replaced is as far into what
/// replaced it, if that is long enough.
[[nodiscard]] double placeAfter(const TextDifferences& differences, double character);

} // namespace Orvello
