#pragma once

#include "notation/Piece.h"

#include <string_view>

namespace velmora {

/// Reads a MusicXML document, partwise or timewise: its notes with their spelling, its tempos and
/// signatures. Tied notes become one; grace notes, cue notes and unpitched ones are left out.
/// Throws FormatError, with the line where that is known.
Piece readMusicXml(std::string_view text);

} // namespace velmora
