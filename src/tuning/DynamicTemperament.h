#pragma once

#include "tuning/Temperament.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace velmora {

/// A temperament of 31 meantone pitches that chooses among neighbouring spellings of a pitch class
/// as keys are struck, and drifts back to the home spellings as notes fade.
class DynamicTemperament : public Temperament {
public:
    DynamicTemperament();

    std::unique_ptr<Temperament> fresh() const override;
    const Tuning& getTuning(unsigned long key) const override;

    /// Chooses the spelling of the struck pitch class, then retunes the instrument.
    void setup(Tunable& instrument, unsigned char key, float velocity) override;

    /// Forces a spelling and plays it in the octave of key 48: n = 3k − 1, 3k and 3k + 1 are the
    /// lower neighbour, the home spelling and the upper neighbour of pitch class k; n + 36 is the
    /// same an octave higher. n is at least −1.
    void isomorph(Tunable& instrument, int n) override;

    /// Lets the struck pitch classes lose their hold. When the last has lost it, C is held at home.
    void fade(double factor) override;

private:
    static constexpr std::size_t kPitches = 31;

    struct Voice {
        std::size_t current; ///< Index of the spelling in use.
        float weight;        ///< Velocity of the last note, decaying; 0 once faded.
    };

    float score(const Voice& struck, std::size_t candidate) const;

    std::array<Voice, 12> voices_{};

    /// How strongly a sounding pitch (row) draws a struck note to a candidate (column). All zero:
    /// a spelling is kept for as long as its pitch class has not faded, and nothing else counts.
    std::array<std::array<float, kPitches>, kPitches> affinity_{};
};

} // namespace velmora
