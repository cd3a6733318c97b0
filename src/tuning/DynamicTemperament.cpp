#include "tuning/DynamicTemperament.h"

#include "base/Log.h"
#include "base/fading.h"
#include "tuning/Tunable.h"
#include "tuning/meantoneGamut.h"

#include <algorithm>
#include <cassert>

namespace velmora {

namespace {

/// The index of each pitch class's home spelling. The adjacent indices are its two alternatives.
constexpr std::array<std::uint8_t, 12> kHome = {1, 3, 6, 9, 11, 14, 16, 19, 21, 24, 27, 29};

/// The score of a spelling whose last note has not faded.
constexpr float kHold = 12.0F;

} // namespace

DynamicTemperament::DynamicTemperament()
{
    for (auto& pitch : meantone::pitches())
        append(std::move(pitch));
    for (std::size_t pitchClass = 0; pitchClass < voices_.size(); ++pitchClass)
        voices_[pitchClass] = {kHome[pitchClass], 0.0F};
}

std::unique_ptr<Temperament> DynamicTemperament::fresh() const
{
    auto copy = std::make_unique<DynamicTemperament>();
    copy->setBaseFrequency(baseFrequency());
    return copy;
}

const Tuning& DynamicTemperament::getTuning(unsigned long key) const
{
    return *tunings()[voices_[key % 12].current];
}

std::optional<int> DynamicTemperament::place(unsigned long key) const
{
    return meantone::placeOf(voices_[key % 12].current);
}

float DynamicTemperament::score(const Voice& struck, std::size_t candidate) const
{
    float sum = struck.current == candidate && struck.weight != 0.0F ? kHold : 0.0F;
    for (const Voice& sounding : voices_) {
        const float pull = sounding.weight * affinity_[sounding.current][candidate];
        if (pull > 0.0F)
            sum += pull;
    }
    return sum;
}

void DynamicTemperament::setup(Tunable& instrument, unsigned char key, float velocity)
{
    const std::size_t pitchClass = key % 12U;
    const std::size_t home = kHome[pitchClass];
    Voice& struck = voices_[pitchClass];

    float best = 0.0F;
    std::size_t chosen = home;
    for (std::size_t candidate = home - 1; candidate <= home + 1; ++candidate) {
        const float candidateScore = score(struck, candidate);
        if (candidateScore > best) {
            best = candidateScore;
            chosen = candidate;
        }
    }
    struck = {chosen, velocity};
    instrument.tune(*this, 0, 127);
}

void DynamicTemperament::isomorph(Tunable& instrument, int n)
{
    assert(n >= -1);
    const int k = (n + 1) / 3;
    const int neighbour = n - 3 * k;
    const auto pitchClass = static_cast<std::size_t>(k % 12);
    const int spelling = kHome[pitchClass] + neighbour;
    // Diagnostics keep their texts: see docs/decisions.md, 125.
    logger("tuning").debug("ISOMORPH {}", spelling);
    // See docs/decisions.md, 13.
    voices_[pitchClass] = {static_cast<std::size_t>(spelling), 0.0F};
    instrument.tune(*this, 0, 127);
    // See docs/decisions.md, 15.
    instrument.play(isomorphKey(n), 1.0F);
}

void DynamicTemperament::fade(double factor)
{
    // See docs/decisions.md, 11.
    for (Voice& voice : voices_) {
        voice.weight = static_cast<float>(voice.weight * factor);
        if (voice.weight < kFaded)
            voice.weight = 0.0F;
    }
    // C always remains as a reference: see docs/decisions.md, 12.
    if (std::ranges::all_of(voices_, [](const Voice& voice) { return voice.weight == 0.0F; }))
        voices_[0] = {kHome[0], static_cast<float>(kFaded)};
}

} // namespace velmora
