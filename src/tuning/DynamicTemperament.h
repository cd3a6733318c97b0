#pragma once

#include "tuning/Temperament.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace velmora {

/// A temperament of 31 meantone pitches with three spellings of each pitch class: its home and the
/// two neighbouring pitches. A pitch class keeps its spelling until its last note has faded; its
/// next note then returns it home.
class DynamicTemperament : public Temperament {
public:
    DynamicTemperament();

    std::unique_ptr<Temperament> fresh() const override;
    const Tuning& getTuning(unsigned long key) const override;
    std::optional<int> place(unsigned long key) const override;

    /// Chooses the spelling of the struck pitch class, then retunes the instrument.
    void setup(Tunable& instrument, unsigned char key, float velocity) override;

    /// Forces a spelling and plays it in the octave of key 48. The values 3k − 1, 3k and 3k + 1
    /// select the lower neighbour, the home and the upper neighbour of pitch class k; n + 36 is the
    /// same spelling an octave higher. n is at least −1.
    void isomorph(Tunable& instrument, int n) override;

    /// Reduces the weight of every pitch class. Once all have faded, C returns home.
    void fade(double factor) override;

private:
    static constexpr std::size_t kPitches = 31;

    struct Voice {
        std::size_t current; ///< Index of the current spelling in `tunings`.
        float weight;        ///< Decaying velocity of the last note; 0 once it has faded.
    };

    float score(const Voice& struck, std::size_t candidate) const;

    std::array<Voice, 12> voices_{};

    /// How strongly a sounding pitch (row) attracts a struck note to a candidate (column). All
    /// zero, so only a pitch class's own last note affects its spelling. See docs/decisions.md, 10.
    std::array<std::array<float, kPitches>, kPitches> affinity_{};
};

} // namespace velmora
