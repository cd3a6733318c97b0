#include "tuning/TextLines.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace velmora {

std::vector<TextLine> splitTextLines(std::span<const std::byte> bytes)
{
    std::string_view text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    if (text.starts_with("\xFF\xFE") || text.starts_with("\xFE\xFF"))
        throw FormatError("is written in UTF-16; save it as UTF-8 in a text editor");
    if (text.starts_with("\xEF\xBB\xBF"))
        text.remove_prefix(3);
    std::vector<TextLine> lines;
    while (!text.empty()) {
        const std::size_t length = std::min(text.find_first_of("\r\n"), text.size());
        lines.push_back({text.substr(0, length), lines.size() + 1});
        text.remove_prefix(length);
        text.remove_prefix(text.starts_with("\r\n") ? 2 : std::min<std::size_t>(1, text.size()));
    }
    return lines;
}

std::string_view trimmed(std::string_view text)
{
    constexpr std::string_view kSpaces = " \t\v\f";
    text.remove_prefix(std::min(text.find_first_not_of(kSpaces), text.size()));
    text.remove_suffix(text.size() - (text.find_last_not_of(kSpaces) + 1));
    return text;
}

std::optional<TextLine> ContentLines::next()
{
    while (next_ < lines_.size()) {
        const TextLine& line = lines_[next_++];
        if (!line.text.starts_with('!'))
            return line;
    }
    return std::nullopt;
}

TextLine ContentLines::need(const std::string& missing)
{
    while (const auto line = next())
        if (!trimmed(line->text).empty())
            return *line;
    throw FormatError::atLine(lines_.size(), missing);
}

std::string_view firstWord(std::string_view line)
{
    const std::string_view text = trimmed(line);
    return text.substr(0, text.find_first_of(" \t!"));
}

std::optional<int> wholeNumber(std::string_view word)
{
    int value = 0;
    const char* end = word.data() + word.size();
    const auto [stop, error] = std::from_chars(word.data(), end, value);
    if (error != std::errc() || stop != end || word.starts_with('-'))
        return std::nullopt;
    return value;
}

std::optional<double> decimalNumber(std::string_view word)
{
    if (word.starts_with('+'))
        word.remove_prefix(1);
    // Such as "inf".
    if (word.find_first_not_of("-.0123456789") < word.find_first_of("0123456789"))
        return std::nullopt;
    double value = 0.0;
    const char* end = word.data() + word.size();
    const auto [stop, error] = std::from_chars(word.data(), end, value);
    if (error != std::errc() || stop != end)
        return std::nullopt;
    return value;
}

std::string decimalText(double value)
{
    std::array<char, 400> text{}; // more than the digits of the greatest number
    const auto result = std::to_chars(text.begin(), text.end(), value, std::chars_format::fixed);
    const std::string digits(text.begin(), result.ptr);
    return digits.find('.') == std::string::npos ? digits + '.' : digits;
}

std::string quotedLine(std::string_view text)
{
    constexpr std::size_t kLongest = 40;
    std::string shown(text.substr(0, kLongest));
    std::ranges::replace_if(
        shown, [](char c) { return c < ' ' || c > '~'; }, '?');
    return '"' + shown + (text.size() > kLongest ? "...\"" : "\"");
}

FormatError errorInLine(const TextLine& line, std::string_view place, const std::string& reason)
{
    const auto offset = static_cast<std::size_t>(place.data() - line.text.data());
    return FormatError::atColumn(line.number, offset + 1, quotedLine(line.text) + " " + reason);
}

} // namespace velmora
