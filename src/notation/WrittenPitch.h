#pragma once

#include <optional>

namespace velmora {

/// A pitch as it is written: a letter, its accidental and its octave. Middle C is C in octave 4.
struct WrittenPitch {
    char letter = 'C';
    int alteration = 0; ///< In semitones: 1 for a sharp, −1 for a flat.
    int octave = 4;

    bool operator==(const WrittenPitch&) const = default;

    /// The MIDI key.
    int key() const;

    /// The place of the letter with its accidental on the chain of fifths: 0 for C, 1 for G.
    int place() const;
};

/// Returns how a MIDI key is written. A place that does not belong to the key, or none, gives way
/// to the spelling that is usual under a key signature of `fifths` sharps.
WrittenPitch writtenPitch(unsigned key, std::optional<int> place, int fifths);

} // namespace velmora
