#pragma once

#include "notation/Piece.h"

#include <string_view>

namespace velmora {

/// Reads a MusicXML document, partwise or timewise, compressed or not, as it is played: repetitions
/// are written out, tied notes are one, grace notes sound just before the note that they adorn, and
/// each staff is a part of its own. Cue notes are left out. Throws FormatError, with the line and
/// the column where they are known.
Piece readMusicXml(std::string_view bytes);

} // namespace velmora
