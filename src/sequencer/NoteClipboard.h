#pragma once

#include "sequencer/Sequence.h"

#include <QByteArray>

#include <vector>

namespace velmora {

/// The MIME type of notes on the clipboard.
constexpr auto kNotesMimeType = "application/x-velmora-notes";

/// Encodes notes without their identities and flags.
QByteArray encodeNotes(const std::vector<Note>& notes);

/// Decodes what `encodeNotes` has written, corrected by `makeValid`. Returns no notes if the bytes
/// contain anything else.
std::vector<Note> decodeNotes(const QByteArray& bytes);

} // namespace velmora
