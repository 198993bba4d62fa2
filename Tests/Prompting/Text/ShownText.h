#pragma once

#include "Orvello/Prompting/Text/PromptPiece.h"

namespace Orvello::Testing {

/// What a reader sees of a line, in the order of the script: without the spaces at its end.
inline QString shownText(const PromptLine& line)
{
    QString text = line.piece->lineText(line.index);
    while (!text.isEmpty() && text.back().isSpace())
        text.chop(1);
    return text;
}

} // namespace Orvello::Testing
