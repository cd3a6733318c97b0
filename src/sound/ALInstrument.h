#pragma once

#include "sound/Instrument.h"
#include "sound/InstrumentStop.h"
#include "sound/Sound.h"

#include <array>
#include <bitset>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace velmora {

/// Plays recorded samples through OpenAL: a key sounds in every stop whose volume is above zero.
/// The velocity of a key is ignored. Needs a current OpenAL context from its making to its end.
class ALInstrument : public Instrument {
public:
    /// Adds a silent stop without samples. References to the stops before it do not hold on. Throws
    /// FormatError beyond 4096 stops.
    InstrumentStop& appendStop(std::string name);

    /// The stops, to be changed: `tune` then tunes every sample again.
    std::vector<InstrumentStop>& stops();
    const std::vector<InstrumentStop>& stops() const { return stops_; }

    /// The decoded sounds under the names that the importer gives them, so that one used by several
    /// keys is decoded once. They outlive the samples of the stops.
    std::map<std::string, std::unique_ptr<Sound>> sounds;

    /// Twice the stop's gain: a slider at full shows a gain of 0.5.
    float getVolume(std::size_t stop) const override;

    /// Sets the stop's gain as it is, not half of it.
    void setVolume(std::size_t stop, float volume) override;

    std::size_t numStops() const override;
    std::string stopName(std::size_t stop) const override;
    void play(int key, float velocity) override;
    void stop(int key) override;
    void silence() override;
    void tune(const Temperament& temperament, int lo, int hi) override;
    void fade(double factor) override;

    /// Whether a key is held or still dies away.
    bool isSounding() const;

private:
    std::vector<InstrumentStop> stops_; ///< After the sounds, and so gone before them.
    std::bitset<kKeys> released_;       ///< The keys with samples that may be fading.

    /// The hertz that each key of every stop was last tuned to; 0 if not known.
    std::array<double, kKeys> pitches_{};
};

} // namespace velmora
