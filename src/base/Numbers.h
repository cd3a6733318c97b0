#pragma once

#include <optional>
#include <string_view>

namespace velmora {

/// The number at the beginning of a text as C's `atof` reads it in the "C" locale, whatever the
/// user's locale is: leading white space and a sign are accepted, what follows the number is
/// ignored. Nothing where `atof` finds no number and returns 0; infinity where it overflows.
std::optional<double> leadingNumber(std::string_view text);

/// The whole number at the beginning of a text, as C's `atoi` reads it; saturates instead of
/// overflowing. Nothing where `atoi` finds none and returns 0.
std::optional<int> leadingInteger(std::string_view text);

} // namespace velmora
