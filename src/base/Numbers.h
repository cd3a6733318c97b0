#pragma once

#include <optional>
#include <string_view>

namespace velmora {

/// Reads the number at the beginning of a text like C's `atof`, but always in the "C" locale. It
/// accepts leading white space and a sign, and ignores everything after the number. Returns nothing
/// if there is no number, and infinity on overflow.
std::optional<double> leadingNumber(std::string_view text);

/// Reads the whole number at the beginning of a text like C's `atoi`, but saturates on overflow.
/// Returns nothing if there is no number.
std::optional<int> leadingInteger(std::string_view text);

} // namespace velmora
