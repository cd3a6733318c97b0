#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string>

namespace velmora {

/// The pitch of each key.
struct KeyTunings {
    std::string name; ///< In UTF-8; may be empty.
    std::array<double, 128> hertz{};
};

/// Reads an AnaMark tuning file (.tun). The section [Exact Tuning] comes first; keys above the
/// highest one that it has repeat from there. Otherwise [Tuning] counts. Throws FormatError with
/// the line, the column and what stands there.
KeyTunings readKeyTunings(std::span<const std::byte> bytes);

} // namespace velmora
