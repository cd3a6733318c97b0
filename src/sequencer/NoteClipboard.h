#pragma once

#include "sequencer/Sequence.h"

#include <QByteArray>

#include <vector>

namespace velmora {

/// The type of notes on a clipboard.
constexpr auto kNotesMimeType = "application/x-velmora-notes";

/// Notes as bytes, without their identities and flags.
QByteArray encodeNotes(const std::vector<Note>& notes);

/// The notes of such bytes, as `makeValid` makes them; none where there is anything else in them.
std::vector<Note> decodeNotes(const QByteArray& bytes);

} // namespace velmora
