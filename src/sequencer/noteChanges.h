#pragma once

#include "sequencer/Sequence.h"

#include <functional>
#include <vector>

namespace velmora {

class MusicalTime;

/// How notes are moved to a grid.
struct Quantisation {
    double unit = 2.0;     ///< The distance of the grid's lines in steps, above 0.
    double strength = 1.0; ///< How much of the way to the grid a note goes, 0 to 1.

    /// Where in each pair of units the second one begins: 0.5 is even, two thirds are triplets.
    double swing = 0.5;

    bool movesEnds = false; ///< The ends move to the grid as well. Otherwise lengths are kept.
};

// Each of these returns what changes among the notes of one sequence, to be put into it with
// `Sequence::swap`. States with the identity 0 are new notes. Times and lengths are in steps.

/// Moves each note to the nearest line of a grid that starts again with each bar. A note whose ends
/// move as well keeps at least a unit, in proportion to the strength.
std::vector<NoteState> quantised(const std::vector<Note>& notes, const Quantisation& quantisation,
                                 const MusicalTime& time);

/// Moves the notes by semitones, all of them or none if one would leave the keys 0…127.
std::vector<NoteState> transposed(const std::vector<Note>& notes, int semitones);

/// Moves the notes in time. At step 0 the whole group stops.
std::vector<NoteState> nudged(const std::vector<Note>& notes, double steps);

/// Adds copies of the notes that are `steps` later and `semitones` higher. At the edges of the
/// roll the whole group stops.
std::vector<NoteState> duplicated(const std::vector<Note>& notes, int semitones, double steps);

/// Divides the notes that sound at a step into two.
std::vector<NoteState> divided(const std::vector<Note>& notes, double step);

/// Joins the notes of each key and channel to one, which lasts from the first to the last end and
/// is as loud as the first.
std::vector<NoteState> joined(const std::vector<Note>& notes);

/// Lets each note last until the next one of its channel begins. The notes of a chord end together
/// even if they did not begin quite together, and the last ones keep their length.
std::vector<NoteState> legato(const std::vector<Note>& notes);

/// Gives each note the velocity that a function returns for it, limited to 1/127…1. A velocity of
/// 0 would end the note in a file.
std::vector<NoteState> revalued(const std::vector<Note>& notes,
                                const std::function<double(const Note&)>& velocity);

} // namespace velmora
