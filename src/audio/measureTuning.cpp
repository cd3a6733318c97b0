#include "audio/measureTuning.h"

#include "audio/SoundFontBank.h"
#include "audio/SynthesizerLane.h"
#include "audio/measurePitch.h"
#include "midi/messages.h"

#include <algorithm>
#include <cmath>
#include <span>
#include <tuple>
#include <vector>

namespace velmora {

namespace {

constexpr double kRate = 44100.0;
constexpr std::size_t kSkipped = 8820;   ///< Frames of the attack.
constexpr std::size_t kMeasured = 44100; ///< The frames that follow.
constexpr int kVelocity = 100;

/// The keys that decide whether a program beats. Higher and lower ones are often stretched samples.
constexpr std::size_t kLowest = 36, kHighest = 96;

constexpr std::size_t kKeys = std::tuple_size_v<KeyCorrections>;

/// Plays a key from silence and returns its sound behind the attack, both sides together.
std::span<const float> soundOf(std::size_t key, SynthesizerLane& lane, std::vector<float>& buffer)
{
    buffer.assign(kSkipped + kMeasured, 0.0F);
    lane.noteOn({0, static_cast<int>(key)}, kVelocity, 0.0);
    lane.mix(buffer.data(), buffer.data(), buffer.size());
    lane.allSoundsOff();
    std::array<float, 512> rest{}; // until it is idle
    lane.mix(rest.data(), rest.data(), rest.size());
    return std::span(buffer).subspan(kSkipped);
}

} // namespace

std::optional<KeyCorrections> measureTuning(const SoundFontBank& bank, int bankNumber, int program,
                                            const std::function<bool()>& isCancelled)
{
    SynthesizerLane lane(kRate, bank);
    lane.controlChange(0, midi::kBankSelect, bankNumber);
    lane.programChange(0, program);
    KeyCorrections corrections{};
    std::vector<float> buffer;
    std::vector<double> swings;
    for (std::size_t key = 0; key < kKeys; ++key) {
        if (isCancelled())
            return std::nullopt;
        const double hertz = 440.0 * std::exp2((static_cast<double>(key) - 69.0) / 12.0);
        const auto pitch = measurePitch(soundOf(key, lane, buffer), kRate, hertz);
        if (!pitch)
            continue;
        corrections[key] = static_cast<float>(1200.0 * std::log2(hertz / pitch->hertz));
        if (key >= kLowest && key <= kHighest)
            swings.push_back(pitch->swing);
    }
    const auto middle = swings.begin() + static_cast<std::ptrdiff_t>(swings.size() / 2);
    std::nth_element(swings.begin(), middle, swings.end());
    if (swings.empty() || *middle > kBeatingSwing)
        return KeyCorrections{};
    return corrections;
}

} // namespace velmora
