#pragma once

#include <optional>
#include <span>
#include <vector>

namespace velmora {

class Temperament;

/// A key that sounds from `start` to `end`, in seconds.
struct TimedKey {
    double start = 0.0;
    double end = 0.0;
    unsigned key = 0; ///< MIDI key, 0…127.
};

/// Plays keys, in any order, in a temperament in its initial state and returns the place on the
/// chain of fifths at which each is spelled when it ends; empty if the temperament does not spell.
std::vector<std::optional<int>> spellNotes(std::span<const TimedKey> keys,
                                           Temperament& temperament);

} // namespace velmora
