#pragma once

#include <string>
#include <string_view>

namespace velmora {

/// True if the bytes are those of a compressed score (.mxl).
bool isPackedScore(std::string_view bytes);

/// Returns the MusicXML document in a compressed score, which its container names. Throws
/// FormatError.
std::string unpackScore(std::string_view bytes);

} // namespace velmora
