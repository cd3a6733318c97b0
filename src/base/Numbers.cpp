#include "base/Numbers.h"

#include <charconv>
#include <limits>

namespace {

/// Takes the leading white space and sign off the text and tells whether the sign is a minus.
bool takeSign(std::string_view& text)
{
    const std::size_t first = text.find_first_not_of(" \t\n\v\f\r");
    text.remove_prefix(first == std::string_view::npos ? text.size() : first);
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+'))
        text.remove_prefix(1);
    // A second sign would be taken by from_chars.
    if (text.starts_with('-'))
        text = {};
    return negative;
}

/// Whether a number that a double cannot hold is too small rather than too large.
bool isTiny(std::string_view number)
{
    const std::size_t exponent = number.find_first_of("eE");
    if (exponent != std::string_view::npos && exponent + 1 < number.size())
        return number[exponent + 1] == '-';
    return number.starts_with('0') || number.starts_with('.');
}

} // namespace

std::optional<double> leadingNumber(std::string_view text)
{
    const bool negative = takeSign(text);
    double value = 0.0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error == std::errc::invalid_argument)
        return std::nullopt;
    if (error == std::errc::result_out_of_range) {
        const auto length = static_cast<std::size_t>(end - text.data());
        value = isTiny(text.substr(0, length)) ? 0.0 : std::numeric_limits<double>::infinity();
    }
    return negative ? -value : value;
}

std::optional<int> leadingInteger(std::string_view text)
{
    const bool negative = takeSign(text);
    int value = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
    if (result.ec == std::errc::invalid_argument)
        return std::nullopt;
    if (result.ec == std::errc::result_out_of_range)
        value = std::numeric_limits<int>::max();
    return negative ? -value : value;
}
