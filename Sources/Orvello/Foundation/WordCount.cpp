#include "Orvello/Foundation/WordCount.h"

#include <algorithm>

namespace Orvello::WordCount {

qsizetype of(QStringView text) { return beginningIn(text, 0, text.size()); }

qsizetype beginningIn(QStringView text, qsizetype first, qsizetype last)
{
    qsizetype count = 0;
    bool isAfterSpace = first == 0 || text[first - 1].isSpace();
    for (const QChar character : text.sliced(first, std::min(last, text.size()) - first)) {
        const bool isSpace = character.isSpace();
        count += !isSpace && isAfterSpace;
        isAfterSpace = isSpace;
    }
    return count;
}

} // namespace Orvello::WordCount
