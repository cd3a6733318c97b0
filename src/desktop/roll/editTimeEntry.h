#pragma once

#include "sequencer/timeEntries.h"

#include <cstddef>
#include <optional>

class QString;
class QWidget;

namespace velmora {

class SequenceDocument;

/// The kinds of entries, as `TimeEntry` numbers them.
constexpr std::size_t kTempoEntry = 0, kTimeSignatureEntry = 1, kKeySignatureEntry = 2,
                      kMarkerEntry = 3, kEntryKinds = 4;

/// Returns the command that adds an entry of a kind, with a mnemonic.
QString addEntryText(std::size_t kind);

/// Asks for a new entry of a kind, which begins at a step with what is in force there, and adds it.
void addTimeEntry(SequenceDocument& document, std::size_t kind, double step, QWidget* parent);

/// Asks for a change of an entry, and makes it. Returns the entry as it is then.
TimeEntry changeTimeEntry(SequenceDocument& document, const TimeEntry& entry, QWidget* parent);

/// Puts an entry in the place of another one, as one edit.
void replaceTimeEntry(SequenceDocument& document, const TimeEntry& before, const TimeEntry& after);

void removeTimeEntry(SequenceDocument& document, const TimeEntry& entry);

} // namespace velmora
