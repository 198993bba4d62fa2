#pragma once

#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

namespace Orvello::Testing {

/// All bytes of a file; empty when there is none.
inline std::string readFile(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return { std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>() };
}

inline void writeFile(const std::string& path, std::string_view bytes)
{
    std::ofstream(path, std::ios::binary).write(bytes.data(), std::ssize(bytes));
}

/// The lines of a text without their line feeds. What follows the last line feed is a line as well.
inline std::vector<std::string> linesOf(std::string_view text)
{
    std::vector<std::string> lines;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        lines.emplace_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return lines;
}

} // namespace Orvello::Testing
