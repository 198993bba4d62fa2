#pragma once

#include <QtGlobal>

#include <algorithm>

namespace Orvello {

/// The one place where a text differs from what it was before.
struct TextEdit {
    qsizetype position = 0;
    qsizetype removed = 0; ///< How many characters stood there.
    qsizetype inserted = 0; ///< How many characters stand there now.

    /// The one place where the text differs after both edits: this one, then another.
    constexpr TextEdit followedBy(const TextEdit& next) const
    {
        const qsizetype begin = std::min(position, next.position);
        const qsizetype endBetween = std::max(position + inserted, next.position + next.removed);
        return { begin, endBetween - inserted + removed - begin,
            endBetween - next.removed + next.inserted - begin };
    }

    friend constexpr bool operator==(const TextEdit&, const TextEdit&) = default;
};

} // namespace Orvello
