#pragma once

#include "app/Player.h"
#include "notation/Piece.h"

#include <filesystem>
#include <string>

namespace velmora {

class SequenceDocument;
class Temperament;

/// Returns a sequence as a piece to be written down: each channel is a part. Signatures and
/// tempos are those of its file; without one, a beat has eight steps. A temperament in its initial
/// state may choose the spelling of the notes, which follows from all of them. Only the notes of
/// `voices` are in the piece.
Piece pieceOf(const SequenceDocument& document, const std::string& title, Temperament& temperament,
              const ChannelSet& voices = ChannelSet().set());

/// Writes a piece as a score: as LilyPond if the extension is .ly, otherwise as MusicXML. Throws
/// std::system_error if that fails, and std::length_error if the piece is too long.
void writeScore(const std::filesystem::path& path, const Piece& piece);

/// True for the extensions of scores, in any letter case: .musicxml, .xml and .ly.
bool isScoreFile(const std::filesystem::path& path);

} // namespace velmora
