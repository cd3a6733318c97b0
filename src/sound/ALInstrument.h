#pragma once

#include "audio/SampleRenderer.h"
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
/// Its velocity only chooses between the sounds of a sample.
class ALInstrument : public Instrument {
    SampleRenderer renderer_; // first, so that it outlives the sounds

public:
    /// Adds a silent stop without samples and invalidates references to the other stops. Throws
    /// FormatError if there are 4096 stops already.
    InstrumentStop& appendStop(std::string name);

    /// Returns the stops for modification. The next `tune` then reaches every sample, since any of
    /// them may have been replaced.
    std::vector<InstrumentStop>& stops();
    const std::vector<InstrumentStop>& stops() const { return stops_; }

    /// Notes whether the pipes of a stop are in memory. May be called while others play.
    void setLoadState(std::size_t stop, LoadState state) { stops_.at(stop).loadState = state; }

    /// The decoded sounds by the names that the importer gives them, so that a sound used by
    /// several keys is decoded once.
    std::map<std::string, std::unique_ptr<Sound>> sounds;

    /// Returns twice the stop's gain: a slider at its top stands for a gain of 0.5.
    float getVolume(std::size_t stop) const override;

    /// Sets the stop's gain to `volume`, not to half of it.
    void setVolume(std::size_t stop, float volume) override;

    std::size_t numStops() const override;
    std::string stopName(std::size_t stop) const override;
    void play(int key, float velocity) override;
    void stop(int key) override;
    void silence() override;
    void tune(const Temperament& temperament, int lo, int hi) override;
    void fade(double factor) override;
    void setDue(double time) override { renderer_.setDue(time); }
    void bend(double cents) override;
    void setGlide(const Glide& glide) override { renderer_.setGlide(glide); }
    void setSoft(bool soft) override { isSoft_ = soft; }

    /// Starts a key of one stop, whose volume does not count, with a gain of its own. Does
    /// nothing if there is no such stop.
    void startPipe(std::size_t stop, int key, float velocity, float gain);

    /// Releases a key of one stop, if there is one.
    void stopPipe(std::size_t stop, int key);

    /// Lets the gain of a group of stops, `InstrumentStop::swell`, glide to `gain`. It is 1 at
    /// first.
    void setSwell(std::uint8_t swell, float gain) { renderer_.setSwell(swell, gain); }

    /// The instrument's sound. Unless the renderer was told beforehand what will be added, nothing
    /// may be added to the instrument while it is played.
    AudioSource* source() override;

    /// What plays the samples, for which the sounds are created.
    SampleRenderer& renderer() { return renderer_; }

    /// Returns whether any sample has been started and has not yet died away.
    bool isSounding() const override;

private:
    std::vector<InstrumentStop> stops_;
    bool isSoft_ = false;
    std::bitset<kKeys> released_; ///< The keys with samples that may be fading.

    /// The pitch in hertz that each key of every stop was last tuned to; 0 if unknown.
    std::array<double, kKeys> pitches_{};
};

} // namespace velmora
