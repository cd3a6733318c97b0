#include "tuning/KeyTemperament.h"

#include <cmath>

namespace velmora {

namespace {

constexpr int kNotesOfOctave = 12;
constexpr std::size_t kMiddleC = 60;

/// In cents: more than the steps in which devices count, and less than can be heard.
constexpr double kSamePitch = 0.01;

/// Gives a temperament the twelve notes from middle C.
void appendOctave(Temperament& temperament, const KeyPitches& hertz)
{
    for (std::size_t key = kMiddleC; key < kMiddleC + kNotesOfOctave; ++key)
        temperament.append(std::make_unique<Ratio>(hertz[key], hertz[kMiddleC]));
    temperament.setBaseFrequency(hertz[kMiddleC]);
}

} // namespace

KeyTemperament::KeyTemperament(const KeyPitches& hertz) : hertz_(hertz)
{
    appendOctave(*this, hertz); // for those that ask by pitch class
}

std::unique_ptr<Temperament> KeyTemperament::fresh() const
{
    return std::make_unique<KeyTemperament>(hertz_);
}

double KeyTemperament::pitchAt(int key) const
{
    if (key < 0)
        return pitchAt(key + kNotesOfOctave) / 2.0;
    // An octave higher than usual: see docs/decisions.md, 1.
    return 2.0 * hertz_.at(static_cast<std::size_t>(key));
}

std::unique_ptr<Temperament> makeTemperament(const KeyPitches& hertz)
{
    for (std::size_t key = kNotesOfOctave; key < hertz.size(); ++key)
        if (1200.0 * std::abs(std::log2(hertz[key] / hertz[key - kNotesOfOctave]) - 1.0) >
            kSamePitch)
            return std::make_unique<KeyTemperament>(hertz);
    auto temperament = std::make_unique<Temperament>();
    appendOctave(*temperament, hertz);
    return temperament;
}

} // namespace velmora
