#pragma once

#include "sequencer/Controllers.h"
#include "sequencer/MusicalTime.h"
#include "sequencer/Sequence.h"

#include <cstddef>
#include <optional>
#include <vector>

class QString;

namespace velmora {

class SequenceDocument;

/// The beats of something that was played freely.
struct FoundBeats {
    /// The tempos that can be asked for, in beats a minute.
    static constexpr double kSlowest = 20.0, kFastest = 480.0;

    std::vector<double> times; ///< In seconds, at least two, in order; they enclose every note.
    int beatsPerBar = 4;
    int firstBar = 0; ///< The first beat that begins a bar, from 0 to `beatsPerBar` − 1.

    /// Beats a minute, in the mean.
    double tempo() const;
};

/// Finds the beats of notes that were played without a metronome. `tempo` is their number a minute
/// if it is known. Returns nothing if there are fewer than eight notes, or more than four hours
/// of them.
///
/// The tempo is the strongest period of the onsets near 120 beats a minute, and the beats are the
/// most even series that falls on onsets (Daniel P. W. Ellis, "Beat Tracking by Dynamic
/// Programming", Journal of New Music Research 36, 2007). A bar begins where the accents are.
std::optional<FoundBeats> findBeats(const std::vector<Note>& notes, const MusicalTime& time,
                                    std::optional<double> tempo = std::nullopt);

/// A piece that was moved to its beats.
struct FittedPiece {
    std::vector<NoteState> notes;
    Controllers controllers;
    MusicalTime time;
};

/// Moves notes and controllers so that the beats that were found fall on those of the piece. Each
/// bar gets the tempo in which it was played, so that the piece sounds as it did.
FittedPiece fitToGrid(const std::vector<Note>& notes, const Controllers& controllers,
                      const MusicalTime& time, const FoundBeats& beats);

/// Does so with a whole document, as one edit that can be undone. `text` names it in the menu.
void fitToGrid(SequenceDocument& document, const FoundBeats& beats, const QString& text);

} // namespace velmora
