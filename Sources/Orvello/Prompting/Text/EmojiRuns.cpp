#include "Orvello/Prompting/Text/EmojiRuns.h"

#include <algorithm>
#include <array>

namespace Orvello {

namespace {

constexpr char32_t textSelector = 0xFE0E;
constexpr char32_t colorSelector = 0xFE0F;
constexpr char32_t joiner = 0x200D;
constexpr char32_t keycap = 0x20E3;

struct Range {
    char32_t first;
    char32_t last;
};

/// What is coloured unless a selector says otherwise: Emoji_Presentation of Unicode's
/// emoji-data.txt in the basic plane. Beyond, text fonts have next to nothing of the kind.
constexpr auto colored
    = std::to_array<Range>({ { 0x231A, 0x231B }, { 0x23E9, 0x23EC }, { 0x23F0, 0x23F0 },
        { 0x23F3, 0x23F3 }, { 0x25FD, 0x25FE }, { 0x2614, 0x2615 }, { 0x2648, 0x2653 },
        { 0x267F, 0x267F }, { 0x2693, 0x2693 }, { 0x26A1, 0x26A1 }, { 0x26AA, 0x26AB },
        { 0x26BD, 0x26BE }, { 0x26C4, 0x26C5 }, { 0x26CE, 0x26CE }, { 0x26D4, 0x26D4 },
        { 0x26EA, 0x26EA }, { 0x26F2, 0x26F3 }, { 0x26F5, 0x26F5 }, { 0x26FA, 0x26FA },
        { 0x26FD, 0x26FD }, { 0x2705, 0x2705 }, { 0x270A, 0x270B }, { 0x2728, 0x2728 },
        { 0x274C, 0x274C }, { 0x274E, 0x274E }, { 0x2753, 0x2755 }, { 0x2757, 0x2757 },
        { 0x2795, 0x2797 }, { 0x27B0, 0x27B0 }, { 0x27BF, 0x27BF }, { 0x2B1B, 0x2B1C },
        { 0x2B50, 0x2B50 }, { 0x2B55, 0x2B55 }, { 0x1F000, 0x1FAFF }, { 0xE0020, 0xE007F } });

bool isColored(char32_t character)
{
    return std::ranges::any_of(colored,
        [&](const Range& range) { return character >= range.first && character <= range.last; });
}

/// The character at the place, and how many units it takes; 0 at the text's end.
std::pair<char32_t, qsizetype> characterAt(QStringView text, qsizetype place)
{
    if (place >= text.size())
        return { 0, 0 };
    if (place + 1 < text.size() && text[place].isHighSurrogate()
        && text[place + 1].isLowSurrogate())
        return { QChar::surrogateToUcs4(text[place], text[place + 1]), 2 };
    return { text[place].unicode(), 1 };
}

} // namespace

std::vector<std::pair<qsizetype, qsizetype>> EmojiRuns::in(QStringView text)
{
    std::vector<std::pair<qsizetype, qsizetype>> runs;
    char32_t previous = 0;
    bool isInRun = false;
    for (qsizetype place = 0; place < text.size();) {
        const auto [character, size] = characterAt(text, place);
        const char32_t next = characterAt(text, place + size).first;
        const bool continues
            = isInRun && (character == colorSelector || character == joiner || character == keycap);
        const bool isJoined = isInRun && previous == joiner;
        const bool begins = next == colorSelector || (isColored(character) && next != textSelector);
        isInRun = continues || isJoined || begins;
        if (isInRun && !runs.empty() && runs.back().first + runs.back().second == place)
            runs.back().second += size;
        else if (isInRun)
            runs.emplace_back(place, size);
        previous = character;
        place += size;
    }
    return runs;
}

} // namespace Orvello
