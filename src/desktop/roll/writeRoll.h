#pragma once

#include <filesystem>

class QString;

namespace velmora {

class SequenceDocument;

/// Writes the roll of a piece under a title, with so many bars on each line: as PDF on the paper of
/// the user's country, or as one picture if the name ends in .png. Throws std::exception with a
/// sentence if the piece is too long or the file cannot be written.
void writeRoll(const std::filesystem::path& path, const SequenceDocument& document,
               const QString& title, int barsPerLine);

} // namespace velmora
