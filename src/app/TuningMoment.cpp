#include "app/TuningMoment.h"

#include "app/Player.h"
#include "sound/keys.h"
#include "tuning/spelling.h"
#include "tuning/usualPlaces.h"

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

/// With more keys than these, there would be too many intervals to read.
constexpr std::size_t kMostKeys = 7;

std::vector<unsigned> tunedKeys(const TuningMoment& moment)
{
    std::vector<unsigned> keys;
    for (unsigned key = 0; key < kKeys; ++key)
        if (moment.sounding[key] && moment.hertz[key] > 0.0)
            keys.push_back(key);
    return keys;
}

} // namespace

TuningMoment readMoment(Player& player)
{
    TuningMoment moment;
    const bool isTuned = player.with([&](const Instrument&, const Temperament& temperament) {
        for (unsigned key = 0; key < kKeys; ++key)
            if (temperament.isMapped(static_cast<int>(key)))
                moment.hertz[key] = temperament.getPitch(key) / 2; // counted an octave higher
        for (unsigned tone = 0; tone < moment.places.size(); ++tone)
            moment.places[tone] = temperament.place(tone);
        moment.centre = temperament.centre();
        moment.drift = temperament.drift();
        moment.period = temperament.period();
        moment.repeatsEveryOctave = temperament.repeatsEveryOctave();
    });
    if (isTuned)
        moment.sounding = player.soundingKeys();
    return moment;
}

std::vector<SoundingInterval> soundingIntervals(const TuningMoment& moment)
{
    const std::vector<unsigned> keys = tunedKeys(moment);
    std::vector<SoundingInterval> intervals;
    for (std::size_t low = 0; low < keys.size() && (low == 0 || keys.size() <= kMostKeys); ++low)
        for (std::size_t high = low + 1; high < keys.size(); ++high)
            intervals.push_back(
                {keys[low], keys[high], hear(moment.hertz[keys[low]], moment.hertz[keys[high]])});
    return intervals;
}

std::optional<Chord> soundingChord(const TuningMoment& moment)
{
    const std::vector<unsigned> keys = tunedKeys(moment);
    if (keys.empty() || !moment.repeatsEveryOctave)
        return std::nullopt;
    std::bitset<12> classes;
    for (const unsigned key : keys)
        classes.set(key % 12);
    return nameChord(classes, keys.front() % 12, moment.places);
}

std::array<Purity, kKeys> soundingPurities(const TuningMoment& moment)
{
    std::array<Purity, kKeys> purities{};
    for (const SoundingInterval& each : soundingIntervals(moment))
        for (const unsigned key : {each.lower, each.upper})
            purities[key] = std::max(purities[key], purityOf(each.heard.distance));
    return purities;
}

std::array<std::string, 12> toneNames(const TuningMoment& moment, const std::optional<Chord>& chord)
{
    const SpelledClasses spelled = chord ? spell(*chord) : SpelledClasses{};
    std::array<double, 12> cents{};
    for (unsigned tone = 0; tone < cents.size(); ++tone)
        cents[tone] = 1200.0 * std::log2(moment.hertz[kMiddleC + tone]);
    const std::array<int, 12> usual = usualPlaces(cents);
    std::array<std::string, 12> names;
    for (unsigned tone = 0; tone < names.size(); ++tone)
        names[tone] = placeName(moment.places[tone].value_or(spelled[tone].value_or(usual[tone])));
    return names;
}

} // namespace velmora
