#pragma once

#include "audio/AudioEngine.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace velmora {

class AppDelegate;

/// What the program measures about its own playing.
struct MeterReading {
    /// The delay from a MIDI message to its sound, in seconds.
    struct Latency {
        double input = 0.0;  ///< From the moment of a message until it was taken, at worst.
        double engine = 0.0; ///< One period and the limiter.
        double server = 0.0; ///< From the engine to the loudspeaker, as the server reports it.
    };

    struct Device {
        std::string name;
        double messagesPerSecond = 0.0;
    };

    std::string output;     ///< The driver and the device; empty without an output.
    double rate = 0.0;      ///< In hertz.
    std::size_t period = 0; ///< In frames.
    Latency latency;
    std::size_t voices = 0;
    bool savesWork = false; ///< Released keys end sooner, because the load is high.
    EngineLoad load;
    std::uint64_t lostPeriods = 0;
    std::optional<std::chrono::system_clock::time_point> lastLoss;
    std::int64_t memory = 0; ///< The bytes of the samples of all loaded instruments.
    std::vector<Device> devices;
};

/// Reads what the player, the engine, the output and the inputs count as they go. Nothing is
/// computed until a reading is asked for.
class Meters {
public:
    explicit Meters(AppDelegate& application);

    /// Returns the reading since the previous call. Call it on the main thread.
    MeterReading read();

private:
    AppDelegate& application_;
    double lastTime_;
    std::map<std::string, std::uint64_t> lastMessages_;
};

/// Returns a reading as lines of a title and a text.
std::vector<std::pair<std::string, std::string>> describe(const MeterReading& reading);

} // namespace velmora
