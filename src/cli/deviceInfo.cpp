#include "cli/deviceInfo.h"

#include "app/AppDelegate.h"
#include "app/generalMidiBanks.h"
#include "audio/Synthesizer.h"
#include "audio/outputDrivers.h"
#include "platform/quiet.h"

#include <nlohmann/json.hpp>

namespace velmora {

using Json = nlohmann::ordered_json;

Json describeMidi()
{
    class Deaf : public MidiReceiver {
        void arrived(const MidiDevice& /*device*/) override {}
        void departed(const MidiDevice& /*device*/) override {}
        void received(std::size_t /*device*/, MidiPacket /*message*/, double /*time*/) override {}
    } receiver;
    const MidiInputs inputs(receiver);
    return {{"service", inputs.services()}, {"inputs", inputs.names()}};
}

Json describeAudio()
{
    quietSoundLibraries();
    const auto output = AudioOutput::open(preferredOutput());
    if (!output || output->driver() == "none")
        return nullptr;
    const std::size_t period = output->period();
    return {{"driver", output->driver()},
            {"rate", output->rate()},
            {"periodFrames", period},
            {"periodMilliseconds", 1000.0 * static_cast<double>(period) / output->rate()}};
}

Json describeOutputs()
{
    quietSoundLibraries();
    Json outputs = Json::array();
    for (const OutputDriver& driver : listOutputs()) {
        Json devices = Json::array();
        for (const OutputDevice& device : driver.devices)
            devices.push_back({{"name", device.name}, {"title", device.title}});
        if (driver.isAvailable)
            outputs.push_back({{"driver", driver.name}, {"devices", devices}});
    }
    return outputs;
}

std::string usableBank()
{
    constexpr double kAnyRate = 48000.0;
    return Synthesizer(kAnyRate, generalMidiBanks()).bank().string();
}

} // namespace velmora
