#include "Orvello/Prompting/Engine/SpokenLength.h"

#include <QChar>
#include <QList>

namespace Orvello {

namespace {

bool isWrittenWithoutSpaces(uint character)
{
    switch (QChar::script(character)) {
    case QChar::Script_Han:
    case QChar::Script_Hiragana:
    case QChar::Script_Katakana:
        return true;
    default:
        return false;
    }
}

} // namespace

SpokenLength SpokenLength::of(QStringView text)
{
    SpokenLength length;
    bool isInWord = false;
    // Half of a surrogate pair is of no script, and no letter.
    for (const uint character : text.toUcs4()) {
        if (isWrittenWithoutSpaces(character)) {
            ++length.characters;
            isInWord = false;
        } else if (QChar::isSpace(character)) {
            isInWord = false;
        } else if (QChar::isLetterOrNumber(character) && !isInWord) {
            ++length.words;
            isInWord = true;
        }
    }
    return length;
}

} // namespace Orvello
