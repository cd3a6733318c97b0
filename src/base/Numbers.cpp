#include "base/Numbers.h"

#include <charconv>
#include <clocale>
#include <cstdlib>
#include <limits>
#include <string>

namespace velmora {

std::optional<double> leadingNumber(std::string_view text)
{
    static const locale_t plain = newlocale(LC_ALL_MASK, "C", nullptr);
    const std::string terminated(text);
    char* end = nullptr;
    const double value = strtod_l(terminated.c_str(), &end, plain);
    if (end == terminated.c_str())
        return std::nullopt;
    return value;
}

std::optional<int> leadingInteger(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(" \t\n\v\f\r");
    text.remove_prefix(first == std::string_view::npos ? text.size() : first);
    if (text.starts_with('+') && !text.starts_with("+-"))
        text.remove_prefix(1);

    int value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error == std::errc::invalid_argument)
        return std::nullopt;
    if (error == std::errc::result_out_of_range)
        return text.starts_with('-') ? std::numeric_limits<int>::min()
                                     : std::numeric_limits<int>::max();
    return value;
}

} // namespace velmora
