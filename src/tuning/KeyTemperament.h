#pragma once

#include "tuning/Temperament.h"

#include <array>
#include <memory>

namespace velmora {

/// The frequency of each MIDI key in hertz.
using KeyPitches = std::array<double, 128>;

/// A temperament that gives each key a pitch of its own, whatever the others have.
class KeyTemperament : public Temperament {
public:
    /// Takes the frequency of each key as it sounds: key 69 has 440 Hz in equal temperament.
    explicit KeyTemperament(const KeyPitches& hertz);

    std::unique_ptr<Temperament> fresh() const override;
    bool repeatsEveryOctave() const override { return false; }

    /// Keys below 0 are an octave lower than those twelve keys above.
    double pitchAt(int key) const override;

private:
    KeyPitches hertz_;
};

/// Returns a temperament of those frequencies: one with a tuning for each pitch class if they
/// repeat in every octave.
std::unique_ptr<Temperament> makeTemperament(const KeyPitches& hertz);

} // namespace velmora
