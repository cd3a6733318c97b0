#pragma once

#include "sound/keys.h"

#include <cstddef>
#include <string>
#include <vector>

namespace velmora {

/// The console of an organ as its maker defined it: what can be drawn, and which pipes then speak.
/// Ranks are numbered as the stops of the sampled instrument that holds the pipes.
struct ConsoleDefinition {
    /// A manual or the pedal, with the stops that it plays.
    struct Division {
        std::string name;
        bool isPedal = false;
        int lowestKey = 0;         ///< MIDI key.
        int highestKey = kLastKey; ///< MIDI key, inclusive.
    };

    /// Consecutive keys that play consecutive pipes of a rank.
    struct Pipes {
        int firstKey = 0; ///< MIDI key of the division.
        int count = 0;    ///< At least 1.
        std::size_t rank = 0;
        int firstPipe = 0; ///< The MIDI key under which the rank has the first pipe.
    };

    /// A drawknob that sounds pipes.
    struct Stop {
        std::string name; ///< As the file has it, with pitch and family.
        std::size_t division = 0;
        std::vector<Pipes> pipes; ///< A key may occur more than once, as in a mixture.
        bool isDrawn = false;     ///< When the organ is opened.
    };

    /// A drawknob that plays keys of one division on another.
    struct Coupler {
        std::string name;
        std::size_t from = 0; ///< The division whose keys are pressed.
        std::size_t to = 0;   ///< The division that also sounds.
        int shift = 0;        ///< In semitones.
        bool isDrawn = false; ///< When the organ is opened.
    };

    std::vector<Division> divisions; ///< From the pedal or the lowest manual upwards.
    std::vector<Stop> stops;
    std::vector<Coupler> couplers;
    std::string identity; ///< Tells this organ from others; the same whenever it is opened.
};

} // namespace velmora
