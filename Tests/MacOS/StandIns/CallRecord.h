#pragma once

#include <string>
#include <vector>

namespace Orvello::Testing {

/// What a stand-in for a framework was called with, one text per call, in order.
using CallRecord = std::vector<std::string>;

/// A four-character code as its characters.
inline std::string fourCharacters(unsigned code)
{
    std::string text;
    for (int shift = 24; shift >= 0; shift -= 8)
        text += static_cast<char>((code >> shift) & 0xFF);
    return text;
}

} // namespace Orvello::Testing
