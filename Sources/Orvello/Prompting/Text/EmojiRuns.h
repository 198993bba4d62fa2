#pragma once

#include <QString>

#include <utility>
#include <vector>

/// What of a text asks to be drawn in colour. Many signs (a check mark, a heart, an arrow, even the
/// copyright sign) are in colour fonts as well, but are text like any other until a variation
/// selector (U+FE0F) asks for the coloured one.
namespace Orvello::EmojiRuns {

/// Start and length of each run of characters to be drawn in colour, from the front.
[[nodiscard]] std::vector<std::pair<qsizetype, qsizetype>> in(QStringView text);

} // namespace Orvello::EmojiRuns
