#include "import/sf2Zones.h"

#include "base/Text.h"
#include "import/RIFF.h"
#include "import/sf2Bank.h"

#include <spdlog/fmt/fmt.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <tuple>

namespace velmora {

namespace sf2 {

namespace {

enum Generator : std::uint16_t {
    kStart,
    kEnd,
    kStartLoop,
    kEndLoop,
    kStartCoarse,
    kEndCoarse = 12,
    kPan = 17,
    kReleaseVolumeEnvelope = 38,
    kKeys = 43,
    kVelocities,
    kStartLoopCoarse,
    kKeyNumber,
    kInitialAttenuation = 48,
    kEndLoopCoarse = 50,
    kCoarseTune,
    kFineTune,
    kSampleId,
    kSampleModes,
    kScaleTuning = 56,
    kOverridingRootKey = 58,
    kGenerators = 61,
};

/// The amounts of all generators of a zone.
class Amounts {
public:
    Amounts()
    {
        constexpr int kInstant = -12000; // in cents of a second
        words_[kReleaseVolumeEnvelope] = static_cast<std::uint16_t>(kInstant);
        words_[kKeys] = words_[kVelocities] = 127 << 8;
        words_[kKeyNumber] = words_[kOverridingRootKey] = UINT16_MAX;
        words_[kScaleTuning] = 100;
    }

    void set(const sfInstGenList& generator)
    {
        if (generator.sfGenOper < words_.size())
            words_[generator.sfGenOper] = generator.word();
    }

    unsigned word(Generator which) const { return words_[which]; }

    /// Returns the amount as a signed number within limits.
    int number(Generator which, int lowest = INT16_MIN, int highest = INT16_MAX) const
    {
        return std::clamp<int>(static_cast<std::int16_t>(words_[which]), lowest, highest);
    }

    int low(Generator which) const { return words_[which] & 0xFF; }
    int high(Generator which) const { return std::min(words_[which] >> 8, 127); }

    /// Returns an offset of sample points that is made of a fine and a coarse part.
    std::int64_t offset(Generator fine, Generator coarse) const
    {
        constexpr std::int64_t kCoarse = 32768;
        return number(fine) + kCoarse * number(coarse);
    }

private:
    std::array<std::uint16_t, kGenerators> words_{};
};

/// Returns the place of the data and the loop, which is `Mode::Once` if the zone or the bank has
/// none that can be played.
Zone placeOf(const sfSample& header, const Amounts& amounts, std::int64_t points)
{
    const auto within = [](std::int64_t position, std::int64_t lowest, std::int64_t highest) {
        return static_cast<std::uint32_t>(std::clamp(position, lowest, std::max(lowest, highest)));
    };
    Zone zone;
    zone.begin = within(header.dwStart + amounts.offset(kStart, kStartCoarse), 0, points);
    zone.end = within(header.dwEnd + amounts.offset(kEnd, kEndCoarse), zone.begin, points);
    zone.loopBegin = within(header.dwStartloop + amounts.offset(kStartLoop, kStartLoopCoarse),
                            zone.begin, zone.end);
    zone.loopEnd = within(header.dwEndloop + amounts.offset(kEndLoop, kEndLoopCoarse),
                          zone.loopBegin, zone.end);
    constexpr unsigned kLoop = 1;
    constexpr unsigned kLoopWhileHeld = 3;
    const unsigned mode = amounts.word(kSampleModes) & 3;
    if (zone.loopEnd > zone.loopBegin && mode == kLoop)
        zone.mode = Zone::Mode::Loop;
    else if (zone.loopEnd > zone.loopBegin && mode == kLoopWhileHeld)
        zone.mode = Zone::Mode::LoopWhileHeld;
    else
        zone.loopBegin = zone.loopEnd = zone.end;
    return zone;
}

Zone zoneOf(const sfSample& header, const Amounts& amounts, std::size_t points)
{
    Zone zone = placeOf(header, amounts, static_cast<std::int64_t>(points));
    zone.lowestKey = amounts.low(kKeys);
    zone.highestKey = amounts.high(kKeys);
    zone.softest = amounts.low(kVelocities);
    zone.loudest = amounts.high(kVelocities);
    zone.sample = amounts.word(kSampleId);
    zone.rate = header.dwSampleRate;
    constexpr int kMiddle = 60; // for sounds without a pitch
    const int own = header.byOriginalPitch < 128 ? header.byOriginalPitch : kMiddle;
    const int root = amounts.number(kOverridingRootKey);
    zone.root = root >= 0 && root < 128 ? root : own;
    zone.cents = header.chPitchCorrection + 100.0 * amounts.number(kCoarseTune, -120, 120) +
                 amounts.number(kFineTune, -99, 99);
    zone.centsPerKey = amounts.number(kScaleTuning, 0, 1200);
    if (const int key = amounts.number(kKeyNumber); key >= 0 && key < 128)
        zone.pitchOf = key;
    zone.decibels = -0.1 * amounts.number(kInitialAttenuation, 0, 1440);
    zone.pan = amounts.number(kPan, -500, 500);
    zone.releaseSeconds = std::exp2(amounts.number(kReleaseVolumeEnvelope) / 1200.0);
    return zone;
}

/// Returns why a zone cannot be played, or nothing if it can.
const char* faultOf(const Zone& zone, const sfSample& header)
{
    constexpr unsigned kRom = 0x8000;
    if ((header.sfSampleType & kRom) != 0)
        return "its sound is in the memory of a sound card and not in the file";
    if (zone.begin == zone.end)
        return header.dwEnd > header.dwStart ? "the file is cut short: its sound is missing"
                                             : "it is empty";
    return nullptr;
}

} // namespace

double Zone::centsOf(int key) const
{
    return (pitchOf.value_or(key) - root) * centsPerKey + cents;
}

std::vector<Zone> zonesOf(const Bank& bank, std::size_t instrument,
                          std::vector<std::string>& skipped)
{
    std::vector<Zone> zones;
    const std::size_t first = bank.instruments[instrument].wInstBagNdx;
    const std::size_t last = std::min<std::size_t>(bank.instruments[instrument + 1].wInstBagNdx,
                                                   bank.bags.empty() ? 0 : bank.bags.size() - 1);
    Amounts global;
    for (std::size_t bag = first; bag < last; ++bag) {
        Amounts amounts = global;
        bool hasSample = false;
        const std::size_t end =
            std::min<std::size_t>(bank.bags[bag + 1].wGenNdx, bank.generators.size());
        for (std::size_t i = bank.bags[bag].wGenNdx; i < end && !hasSample; ++i) {
            amounts.set(bank.generators[i]);
            hasSample = bank.generators[i].sfGenOper == kSampleId;
        }
        if (!hasSample) {
            if (bag == first)
                global = amounts;
            continue;
        }
        const std::size_t sample = amounts.word(kSampleId);
        if (sample + 1 >= bank.samples.size()) {
            skipped.push_back(fmt::format("it refers to sample {}, but there are only {}",
                                          sample + 1, bank.samples.size() - 1));
            continue;
        }
        const sfSample& header = bank.samples[sample];
        const Zone zone = zoneOf(header, amounts, bank.pool.length() / sizeof(std::int16_t));
        if (const char* fault = faultOf(zone, header))
            skipped.push_back(toUtf8(fieldText(header.achSampleName)) + ": " + fault);
        else
            zones.push_back(zone);
    }
    return zones;
}

} // namespace sf2

} // namespace velmora
