#include "tuning/soundingScale.h"

#include "tuning/ScaleTemperament.h"
#include "tuning/TransposedTemperament.h"

#include <cmath>
#include <utility>

namespace velmora {

namespace {

constexpr int kKeysOfMidi = 128;
constexpr int kNotesFromC = 12;
constexpr int kReferenceC = 60, kReferenceA = 69;

/// In cents.
constexpr double kSameCents = 1e-6;

double hertzAt(const Temperament& temperament, int key)
{
    // An octave higher than usual: see docs/decisions.md, 1.
    return temperament.pitchAt(key) / 2.0;
}

double centsBetween(const Temperament& temperament, int from, int to)
{
    return 1200.0 * std::log2(temperament.pitchAt(to) / temperament.pitchAt(from));
}

TuningShape octaveFromC(const Temperament& temperament)
{
    TuningShape sounding;
    for (int note = 1; note < kNotesFromC; ++note)
        sounding.scale.pitches.emplace_back(
            Cent(centsBetween(temperament, kReferenceC, kReferenceC + note)));
    sounding.scale.pitches.emplace_back(Ratio(2.0, 1.0));
    sounding.mapping.referenceKey = kReferenceA;
    sounding.mapping.referenceHertz = hertzAt(temperament, kReferenceA);
    return sounding;
}

/// Returns the scale of a temperament as it was defined, moved to its root and pitch; nothing if it
/// was not defined by a scale, or if its mapping does not reach all keys there.
std::optional<TuningShape> definedScale(const Temperament& temperament)
{
    const auto* transposed = dynamic_cast<const TransposedTemperament*>(&temperament);
    const int root = transposed == nullptr ? 0 : transposed->transposition().root;
    const auto* defined = dynamic_cast<const ScaleTemperament*>(
        transposed == nullptr ? &temperament : &transposed->inner());
    if (defined == nullptr)
        return std::nullopt;
    TuningShape sounding{defined->scale(), defined->mapping()};
    KeyMapping& mapping = sounding.mapping;
    for (int* key : {&mapping.middleKey, &mapping.referenceKey})
        *key += root;
    if (mapping.referenceKey >= kKeysOfMidi)
        return std::nullopt;
    mapping.referenceHertz = hertzAt(temperament, mapping.referenceKey);
    const ScaleTemperament copy(sounding.scale, mapping);
    for (int key = 0; key < kKeysOfMidi; ++key) {
        if (copy.isMapped(key) != temperament.isMapped(key))
            return std::nullopt;
        const double cents = 1200.0 * std::log2(copy.pitchAt(key) / temperament.pitchAt(key));
        if (copy.isMapped(key) && !(std::abs(cents) < kSameCents))
            return std::nullopt;
    }
    return sounding;
}

TuningShape noteForEachKey(const Temperament& temperament)
{
    TuningShape sounding;
    std::optional<int> first;
    int degree = 0;
    for (int key = 0; key < kKeysOfMidi; ++key) {
        if (!temperament.isMapped(key)) {
            sounding.mapping.degrees.emplace_back();
            continue;
        }
        if (!first)
            first = key;
        else
            sounding.scale.pitches.emplace_back(Cent(centsBetween(temperament, *first, key)));
        sounding.mapping.degrees.emplace_back(degree++);
    }
    // Nothing is repeated, so that the period does not matter.
    sounding.scale.pitches.emplace_back(Ratio(2.0, 1.0));
    sounding.mapping.middleKey = 0;
    sounding.mapping.octaveDegree = degree;
    if (first) {
        sounding.mapping.referenceKey = *first;
        sounding.mapping.referenceHertz = hertzAt(temperament, *first);
    }
    return sounding;
}

} // namespace

TuningShape soundingScale(const Temperament& temperament, const std::string& description)
{
    auto sounding = definedScale(temperament);
    if (!sounding)
        sounding = temperament.repeatsEveryOctave() ? octaveFromC(temperament)
                                                    : noteForEachKey(temperament);
    sounding->scale.description = description;
    return *std::move(sounding);
}

} // namespace velmora
