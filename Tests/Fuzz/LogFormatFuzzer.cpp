// Any format with any arguments. The first line of the input is the format, and each further line
// an argument. Its first letter says what the bytes after it are: d and u integers, f a number, w a
// text in UTF-16; every other line is a text.

#include "Orvello/Diagnostics/LogFormat.h"

#include <QByteArrayView>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <vector>

using Orvello::LogArgument;

namespace {

template <typename Number>
Number numberFrom(std::string_view bytes)
{
    Number number {};
    std::memcpy(&number, bytes.data(), std::min(bytes.size(), sizeof number));
    return number;
}

std::u16string utf16From(std::string_view bytes)
{
    std::u16string text(bytes.size() / sizeof(char16_t), u'\0');
    if (!text.empty())
        std::memcpy(text.data(), bytes.data(), text.size() * sizeof(char16_t));
    return text;
}

std::string_view takeLine(std::string_view& input)
{
    const std::string_view line = input.substr(0, input.find('\n'));
    input.remove_prefix(std::min(line.size() + 1, input.size()));
    return line;
}

LogArgument argumentFrom(std::string_view line, std::u16string& utf16)
{
    const std::string_view rest = line.substr(std::min<std::size_t>(line.size(), 1));
    switch (line.empty() ? '\0' : line.front()) {
    case 'd':
        return LogArgument(numberFrom<std::int64_t>(rest));
    case 'u':
        return LogArgument(numberFrom<std::uint64_t>(rest));
    case 'f':
        return LogArgument(numberFrom<double>(rest));
    case 'w':
        utf16 = utf16From(rest);
        return LogArgument(QStringView(utf16));
    default:
        return LogArgument(line);
    }
}

void require(bool holds)
{
    if (!holds)
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::string_view input(reinterpret_cast<const char*>(data), size);
    const std::string_view format = takeLine(input);
    std::vector<std::u16string> utf16Texts(8);
    std::vector<LogArgument> arguments;
    for (std::u16string& utf16 : utf16Texts) {
        if (!input.empty())
            arguments.push_back(argumentFrom(takeLine(input), utf16));
    }

    std::string line = "before ";
    Orvello::LogFormat::append(line, format, arguments);

    require(line.starts_with("before "));
    require(QByteArrayView(line).isValidUtf8());
    // A number takes some 320 bytes at most, every byte of a text or a format at most one U+FFFD.
    require(line.size() <= 7 + utf16Texts.size() * 320 + 3 * size);
    if (format.find('%') == std::string_view::npos && QByteArrayView(format).isValidUtf8())
        require(std::string_view(line).substr(7) == format);
    return 0;
}
