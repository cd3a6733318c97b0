#pragma once

#include "tuning/KeyMapping.h"
#include "tuning/Scale.h"
#include "tuning/Temperament.h"

#include <array>

namespace velmora {

/// A scale of any size on the keys of a keyboard mapping. Without a mapping, key 60 is the first
/// note of the scale and sounds as middle C, and each key plays the next degree. See
/// docs/decisions.md, 186.
class ScaleTemperament : public Temperament {
public:
    /// Throws FormatError if the reference key is silent, or if a key would have no finite pitch.
    explicit ScaleTemperament(Scale scale, KeyMapping mapping = {});

    std::unique_ptr<Temperament> fresh() const override;
    bool repeatsEveryOctave() const override { return repeatsEveryOctave_; }
    double period() const override { return scale_.period(); }
    double pitchAt(int key) const override;
    bool isMapped(int key) const override;

    const Scale& scale() const { return scale_; }
    const KeyMapping& mapping() const { return mapping_; }

private:
    /// The keys that can be asked for, of which the lowest lies an octave below key 0.
    static constexpr int kLowestKey = -12;
    static constexpr std::size_t kKeyCount = 140;

    /// Returns the distance of a key from the first note of the scale in cents; nothing for a
    /// silent key.
    std::optional<double> centsAt(int key) const;

    void findPitches();
    bool findRepetition() const;
    void appendTunings();
    void appendPitch(const ScalePitch& pitch);

    Scale scale_;
    KeyMapping mapping_;
    std::array<double, kKeyCount> pitches_{}; ///< In hertz; 0 for silent keys.
    bool repeatsEveryOctave_ = false;
};

} // namespace velmora
