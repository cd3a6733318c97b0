#include "base/Text.h"

#include <bit>
#include <cstdint>
#include <iterator>

namespace velmora {

namespace {

/// The smallest and greatest code points that are encoded in a given number of bytes.
struct Range {
    std::uint32_t lowest;
    std::uint32_t highest;
};
constexpr Range kRanges[] = {{0, 0x7F}, {0x80, 0x7FF}, {0x800, 0xFFFF}, {0x10000, 0x10FFFF}};

/// Removes the first code point. Returns false if the text does not begin with a valid one.
bool takeCodePoint(std::string_view& text)
{
    const auto first = static_cast<unsigned char>(text.front());
    const int ones = std::countl_one(first);
    const std::size_t length = ones == 0 ? 1 : static_cast<std::size_t>(ones);
    if (ones == 1 || length > std::size(kRanges) || length > text.size())
        return false;
    std::uint32_t code = length == 1 ? first : first & 0x7FU >> length;
    for (const char next : text.substr(1, length - 1)) {
        if ((next & 0xC0) != 0x80)
            return false;
        code = code << 6 | (static_cast<unsigned char>(next) & 0x3FU);
    }
    text.remove_prefix(length);
    const auto [lowest, highest] = kRanges[length - 1];
    return code >= lowest && code <= highest && (code < 0xD800 || code > 0xDFFF);
}

bool isUtf8(std::string_view text)
{
    while (!text.empty()) {
        if (!takeCodePoint(text))
            return false;
    }
    return true;
}

} // namespace

std::string toUtf8(std::string_view text)
{
    if (isUtf8(text))
        return std::string(text);
    std::string result;
    for (const char character : text) {
        const auto code = static_cast<unsigned char>(character);
        if (code < 0x80) {
            result += character;
        } else {
            result += static_cast<char>(0xC0 | code >> 6);
            result += static_cast<char>(0x80 | (code & 0x3F));
        }
    }
    return result;
}

std::string lowerCase(std::string text)
{
    for (char& letter : text) {
        if (letter >= 'A' && letter <= 'Z')
            letter = static_cast<char>(letter + ('a' - 'A'));
    }
    return text;
}

std::string counted(std::size_t count, std::string_view noun)
{
    return std::to_string(count) + ' ' + std::string(noun) + (count == 1 ? "" : "s");
}

} // namespace velmora
