#pragma once

#include "tuning/Temperament.h"

#include <span>
#include <string_view>
#include <variant>

namespace velmora {

/// A temperament from the literature, made from its definition.
struct HistoricalTemperament {
    /// Fifths that are narrower than pure ones by parts of a comma, from C–G, G–D, D–A to F–C.
    struct Fifths {
        enum class Comma { Syntonic, Pythagorean };

        /// Stands for a fifth that takes its share of what is left until the circle is closed. The
        /// shares are equal.
        static constexpr int kRest = 99;

        Comma comma = Comma::Pythagorean;
        int parts = 1;    ///< The part of the comma that the numbers count.
        int narrowed[12]; ///< Negative for wide fifths.
    };

    /// Frequency ratios to C, of C♯ to B.
    struct Ratios {
        struct {
            int numerator, denominator;
        } pitches[11];
    };

    /// Twelve notes, E♭ to G♯, of a chain of the best fifths of an equal division of the octave.
    struct Division {
        int steps;
    };

    std::string_view group;
    std::string_view name;
    std::string_view source; ///< Year, author and where it is described, in one line.
    std::variant<Fifths, Ratios, Division> definition;

    /// Returns the temperament on C.
    Temperament make() const;
};

/// All of them, group by group.
std::span<const HistoricalTemperament> historicalTemperaments();

/// Returns the one of that name; null if there is none.
const HistoricalTemperament* findHistoricalTemperament(std::string_view name);

} // namespace velmora
