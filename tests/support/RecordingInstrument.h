#pragma once

#include "sound/Instrument.h"

#include <spdlog/fmt/fmt.h>

#include <string>
#include <vector>

namespace velmora {

using Calls = std::vector<std::string>;

/// Records the calls that it receives.
class RecordingInstrument : public Instrument {
public:
    explicit RecordingInstrument(Calls& calls) : calls_(calls) {}

    float getVolume(std::size_t /*stop*/) const override { return 1.0F; }
    std::size_t numStops() const override { return 5; }
    void setVolume(std::size_t stop, float volume) override
    {
        calls_.push_back(fmt::format("volume {} {:.2f}", stop, volume));
    }
    void play(int key, float velocity) override
    {
        calls_.push_back(fmt::format("play {} {:.2f}", key, velocity));
    }
    void stop(int key) override { calls_.push_back(fmt::format("stop {}", key)); }
    void silence() override { calls_.push_back("silence"); }
    void tune(const Temperament& /*temperament*/, int lo, int hi) override
    {
        calls_.push_back(fmt::format("tune {} {}", lo, hi));
    }
    void fade(double factor) override { calls_.push_back(fmt::format("fade {}", factor)); }

private:
    Calls& calls_;
};

} // namespace velmora
