#pragma once

#include <QString>

/// Counts words: the longest runs without white space or line breaks.
namespace Orvello::WordCount {

[[nodiscard]] qsizetype of(QStringView text);

/// How many words begin at a position in [first, last). The sum over the pieces of a text is the
/// count of the whole, so that an edit needs a look only at what it touched.
[[nodiscard]] qsizetype beginningIn(QStringView text, qsizetype first, qsizetype last);

} // namespace Orvello::WordCount
