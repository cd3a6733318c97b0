#include "app/Meters.h"

#include "app/AppDelegate.h"
#include "app/sizeString.h"
#include "audio/outputDrivers.h"
#include "base/Clock.h"

#include <spdlog/fmt/chrono.h>
#include <spdlog/fmt/fmt.h>

#include <algorithm>
#include <ctime>

namespace velmora {

namespace {

using std::chrono::system_clock;

/// Converts a time in the seconds of `getTime` to the time of day.
system_clock::time_point wallTime(double time)
{
    const std::chrono::duration<double> ago(getTime() - time);
    return system_clock::now() - std::chrono::duration_cast<system_clock::duration>(ago);
}

std::string milliseconds(double seconds)
{
    return fmt::format("{:.1f} ms", 1000.0 * seconds);
}

std::string describeLatency(const MeterReading::Latency& latency)
{
    return fmt::format("{} (input {}, period and limiter {}, sound server {})",
                       milliseconds(latency.input + latency.engine + latency.server),
                       milliseconds(latency.input), milliseconds(latency.engine),
                       milliseconds(latency.server));
}

std::string describeLosses(const MeterReading& reading)
{
    if (!reading.lastLoss)
        return fmt::format("{}", reading.lostPeriods);
    return fmt::format("{}, the last at {:%H:%M:%S}", reading.lostPeriods,
                       fmt::localtime(system_clock::to_time_t(*reading.lastLoss)));
}

} // namespace

Meters::Meters(AppDelegate& application) : application_(application), lastTime_(getTime()) {}

MeterReading Meters::read()
{
    MeterReading reading;
    AudioEngine& engine = application_.engine();
    if (const OutputKeeper* keeper = application_.output()) {
        const OutputStatus output = keeper->status();
        reading.output =
            driverTitle(output.driver) + (output.device.empty() ? "" : ", " + output.device);
        reading.rate = output.rate;
        reading.period = output.period;
        reading.latency.server = output.latency;
        reading.lostPeriods = output.lostPeriods;
        if (output.lastLoss > 0.0)
            reading.lastLoss = wallTime(output.lastLoss);
    }
    reading.latency.input = application_.player().takeInputDelay();
    reading.latency.engine = engine.delay();
    reading.voices = engine.voices();
    reading.savesWork = engine.savesWork();
    reading.load = engine.takeLoad();
    for (const auto& document : application_.instruments())
        if (const Instrument* instrument = document->instrument())
            reading.memory += instrument->usage;

    const double now = getTime();
    for (const KnownDevice& device : application_.midiDevices().devices()) {
        if (!device.isConnected)
            continue;
        // The first reading of a device has nothing to compare with.
        const auto before = lastMessages_.try_emplace(device.name, device.messages).first;
        // One that has returned may count from the beginning.
        const std::uint64_t messages =
            device.messages -
            std::min(std::exchange(before->second, device.messages), device.messages);
        reading.devices.push_back({device.name, static_cast<double>(messages) / (now - lastTime_)});
    }
    lastTime_ = now;
    return reading;
}

std::vector<std::pair<std::string, std::string>> describe(const MeterReading& reading)
{
    std::vector<std::pair<std::string, std::string>> lines = {
        {"Output", reading.output.empty() ? "none" : reading.output},
        {"Sample rate", fmt::format("{:g} Hz", reading.rate)},
        {"Period", fmt::format("{} frames, {}", reading.period,
                               milliseconds(reading.rate > 0.0
                                                ? static_cast<double>(reading.period) / reading.rate
                                                : 0.0))},
        {"From MIDI to sound", describeLatency(reading.latency)},
        {"Voices", fmt::format("{}{}", reading.voices,
                               reading.savesWork ? ", released keys are shortened" : "")},
        {"Load", fmt::format("{:.0f} % of the period, at worst {:.0f} %", 100.0 * reading.load.mean,
                             100.0 * reading.load.worst)},
        {"Lost periods", describeLosses(reading)},
        {"Instruments in memory",
         reading.memory == 0 ? "none" : sizeString(static_cast<std::uint64_t>(reading.memory))}};
    for (const auto& [name, rate] : reading.devices)
        lines.emplace_back(name, fmt::format("{:.0f} messages a second", rate));
    return lines;
}

} // namespace velmora
