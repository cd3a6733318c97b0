#pragma once

#include <span>
#include <vector>

namespace velmora {

/// The parts of a quarter note in which notation counts. Thirty-second notes and triplets of
/// sixteenth notes are whole numbers of them.
constexpr int kScoreDivisions = 24;

/// A note value: 1, 2, 4 … 32 for a whole note to a thirty-second note, perhaps dotted, perhaps in
/// a triplet.
struct NoteValue {
    int value = 4;
    bool isDotted = false;
    bool isTriplet = false;

    bool operator==(const NoteValue&) const = default;

    /// How long the value lasts, in divisions.
    int length() const;
};

/// How the quarter notes of a part are divided: for each, the unit on whose multiples its notes
/// lie, in divisions. A unit that does not divide a sixteenth note is that of a triplet.
class BeatGrid {
public:
    /// Takes the moments, in quarter notes, at which notes begin and end, and finds for each
    /// quarter note the coarsest division that they fit.
    BeatGrid(std::span<const double> starts, std::span<const double> ends);

    /// Divides the quarter note that contains a position into thirty-second notes if it has
    /// triplets. A bar line may stand where a triplet has no note.
    void avoidTriplets(int position);

    /// Returns a moment, in quarter notes, on the grid, in divisions.
    int position(double quarters) const;

    /// Returns the unit at a position, in divisions.
    int unit(int position) const;

    /// True if the quarter note that contains a position has triplets.
    bool hasTriplets(int position) const { return isTriplet(unit(position)); }

private:
    static bool isTriplet(int unit) { return unit % 3 != 0; }

    std::vector<int> units_; ///< Of each quarter note.
};

/// Returns the values, to be tied together, that fill the time from `position` for `length`
/// divisions. A value crosses a quarter note only where readers expect it.
std::vector<NoteValue> noteValues(int position, int length, const BeatGrid& grid);

} // namespace velmora
