#pragma once

#include "sequencer/Sequence.h"

#include <QByteArray>

#include <vector>

namespace velmora {

/// The MIME type of notes on the clipboard.
constexpr auto kNotesMimeType = "application/x-velmora-notes";

/// Encodes notes without their identities and flags.
QByteArray encodeNotes(const std::vector<Note>& notes);

/// Decodes bytes from `encodeNotes` and corrects the notes with `makeValid`. Returns no notes if
/// any byte is invalid or missing.
std::vector<Note> decodeNotes(const QByteArray& bytes);

} // namespace velmora
