#include "tuning/ScaleTemperament.h"

#include "base/FormatError.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace velmora {

namespace {

constexpr int kKeysOfOctave = 12;

/// Pitches are counted an octave higher than they sound: see docs/decisions.md, 1.
constexpr double kOctaveHigher = 2.0;

} // namespace

ScaleTemperament::ScaleTemperament(Scale scale, KeyMapping mapping)
    : scale_(std::move(scale)), mapping_(std::move(mapping))
{
    findPitches();
    repeatsEveryOctave_ = findRepetition();
    appendTunings();
}

std::unique_ptr<Temperament> ScaleTemperament::fresh() const
{
    return std::make_unique<ScaleTemperament>(scale_, mapping_);
}

double ScaleTemperament::pitchAt(int key) const
{
    const int lowest = kLowestKey;
    const double pitch = pitches_.at(static_cast<std::size_t>(key - lowest));
    return pitch > 0.0 ? pitch : equal.pitchAt(key);
}

bool ScaleTemperament::isMapped(int key) const
{
    const int lowest = kLowestKey;
    return pitches_.at(static_cast<std::size_t>(key - lowest)) > 0.0;
}

std::optional<double> ScaleTemperament::centsAt(int key) const
{
    const int distance = key - mapping_.middleKey;
    const int count = static_cast<int>(mapping_.degrees.size());
    if (count == 0)
        return scale_.cents(distance);
    const int index = (distance % count + count) % count;
    const auto degree = mapping_.degrees[static_cast<std::size_t>(index)];
    if (!degree)
        return std::nullopt;
    const double step =
        mapping_.octaveDegree == 0 ? scale_.period() : scale_.cents(mapping_.octaveDegree);
    const int repetitions = (distance - index) / count;
    return scale_.cents(*degree) + repetitions * step;
}

void ScaleTemperament::findPitches()
{
    const auto reference = centsAt(mapping_.referenceKey);
    if (!reference)
        throw FormatError("the reference key " + std::to_string(mapping_.referenceKey) +
                          " plays no note");
    for (int key = kLowestKey; double& pitch : pitches_) {
        // Keys below 0 are asked for when the temperament is transposed.
        const int real = std::max(key, 0);
        if (real < mapping_.firstKey || real > mapping_.lastKey) {
            pitch = equal.pitchAt(key);
        } else if (const auto cents = centsAt(key)) {
            pitch =
                kOctaveHigher * mapping_.referenceHertz * std::exp2((*cents - *reference) / 1200.0);
            if (!std::isfinite(pitch) || !std::isnormal(pitch) || pitch < 0.0)
                throw FormatError("the pitch of key " + std::to_string(real) +
                                  " is beyond all bounds");
        }
        ++key;
    }
}

bool ScaleTemperament::findRepetition() const
{
    constexpr double kSame = 1e-9;
    if (std::ranges::find(pitches_, 0.0) != pitches_.end())
        return false;
    for (std::size_t i = kKeysOfOctave; i < pitches_.size(); ++i)
        if (std::abs(pitches_[i] / pitches_[i - kKeysOfOctave] - 2.0) > kSame)
            return false;
    return true;
}

/// Those that ask by pitch class get the twelve notes from middle C, even if they do not repeat.
void ScaleTemperament::appendTunings()
{
    constexpr int kFirst = 60;
    setBaseFrequency(ScaleTemperament::pitchAt(kFirst) / 2.0);
    const bool isLinear = mapping_.degrees.empty() && mapping_.middleKey % kKeysOfOctave == 0 &&
                          scale_.pitches.size() == static_cast<std::size_t>(kKeysOfOctave);
    for (int i = 0; i < kKeysOfOctave; ++i) {
        if (isLinear && i > 0)
            appendPitch(scale_.pitches[static_cast<std::size_t>(i) - 1]);
        else
            append(std::make_unique<Cent>(1200.0 * std::log2(ScaleTemperament::pitchAt(kFirst + i) /
                                                             ScaleTemperament::pitchAt(kFirst))));
    }
}

void ScaleTemperament::appendPitch(const ScalePitch& pitch)
{
    if (const auto* ratio = std::get_if<Ratio>(&pitch))
        append(std::make_unique<Ratio>(*ratio));
    else
        append(std::make_unique<Cent>(std::get<Cent>(pitch)));
}

} // namespace velmora
