#pragma once

#include "sound/ALInstrument.h"
#include "sound/Console.h"
#include "sound/Instrument.h"
#include "sound/Windchest.h"

#include <memory>
#include <string>

namespace velmora {

/// An organ with a console: its stops are the drawknobs, which play the pipes of its ranks.
class OrganInstrument : public Instrument, private Windchest {
public:
    /// The ranks of the definition are the stops of `ranks`, whatever their volumes.
    /// `InstrumentStop::swell` is 0 for a rank in no swell, otherwise its division plus 1.
    OrganInstrument(std::unique_ptr<ALInstrument> ranks, ConsoleDefinition definition);

    Console& console() { return console_; }
    const Console& console() const { return console_; }

    ALInstrument& ranks() { return *ranks_; }
    const ALInstrument& ranks() const { return *ranks_; }

    /// Returns the gain of a drawknob; 0 if it is not drawn.
    float getVolume(std::size_t stop) const override;

    /// Draws a drawknob with a gain, or pushes it in if the gain is 0.
    void setVolume(std::size_t stop, float volume) override;

    std::size_t numStops() const override { return console_.definition().stops.size(); }
    std::string stopName(std::size_t stop) const override;

    /// Returns whether the pipes of a stop are in memory: `Loaded` if a rank of it is and none of
    /// them is still to come. Main thread only.
    LoadState loadState(std::size_t stop) const;

    /// Lets the pipes of a rank speak that held keys ask for, after the rank was loaded and tuned.
    void startRank(std::size_t rank) { console_.startRank(rank); }

    std::size_t numDivisions() const override { return console_.definition().divisions.size(); }
    std::size_t mainDivision() const override { return mainDivision_; }
    void playOn(std::size_t division, int key, float velocity) override;
    void stopOn(std::size_t division, int key) override;

    void play(int key, float velocity) override { playOn(mainDivision_, key, velocity); }
    void stop(int key) override { stopOn(mainDivision_, key); }

    void silence() override;
    void tune(const Temperament& temperament, int lo, int hi) override;
    void fade(double factor) override { ranks_->fade(factor); }
    void setDue(double time) override { ranks_->setDue(time); }
    void bend(double cents) override { ranks_->bend(cents); }
    void setGlide(const Glide& glide) override { ranks_->setGlide(glide); }
    void setSoft(bool soft) override { ranks_->setSoft(soft); }
    AudioSource* source() override { return ranks_->source(); }
    bool isSounding() const override { return ranks_->isSounding(); }

private:
    void startPipe(std::size_t rank, int key, float velocity, float gain) override;
    void stopPipe(std::size_t rank, int key) override;
    void openSwell(std::size_t division, float opening) override;

    std::unique_ptr<ALInstrument> ranks_;
    Console console_;
    std::size_t mainDivision_; ///< The lowest manual.
};

/// Returns what holds the samples of an instrument; null if it has none.
const ALInstrument* sampledRanksOf(const Instrument& instrument);

} // namespace velmora
