#include "cli/commands.h"

#include "app/preferredOutput.h"
#include "audio/Synthesizer.h"
#include "audio/outputDrivers.h"
#include "platform/quiet.h"

#include <nlohmann/json.hpp>
#include <spdlog/fmt/fmt.h>

namespace velmora {

using Json = nlohmann::ordered_json;

namespace {

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

/// Describes the drivers that are available, and their devices.
Json describeOutputs()
{
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

void printOutputs(const Json& outputs)
{
    fmt::print("Available outputs:\n");
    for (const Json& output : outputs) {
        const auto driver = output["driver"].get<std::string>();
        fmt::print("  {}\n", driver);
        for (const Json& device : output["devices"])
            fmt::print("  {}:{} ({})\n", driver, device["name"].get<std::string>(),
                       device["title"].get<std::string>());
    }
}

} // namespace

void devices(bool json)
{
    const Json midi = describeMidi();
    const Json audio = describeAudio();
    const Json outputs = describeOutputs();
    const std::string bank = Synthesizer(48000.0, generalMidiBanks()).bank().string();
    if (json) {
        const Json all = {{"midi", midi},
                          {"audio", audio},
                          {"outputs", outputs},
                          {"generalMidiBank", bank.empty() ? Json() : Json(bank)}};
        fmt::print("{}\n", all.dump(2, ' ', false, Json::error_handler_t::replace));
        return;
    }

    fmt::print("MIDI inputs{}:{}\n",
               midi["inputs"].empty() ? "" : " (" + midi["service"].get<std::string>() + ")",
               midi["inputs"].empty() ? " none" : "");
    for (const Json& name : midi["inputs"])
        fmt::print("  {}\n", name.get<std::string>());
    if (audio.is_null())
        fmt::print("Sound output: none\n");
    else
        fmt::print("Sound output: {}, {} Hz, periods of {} frames ({:.1f} ms)\n",
                   audio["driver"].get<std::string>(), audio["rate"].get<double>(),
                   audio["periodFrames"].get<std::size_t>(),
                   audio["periodMilliseconds"].get<double>());
    printOutputs(outputs);
    fmt::print("General MIDI bank: {}\n", bank.empty() ? "none" : bank);
}

} // namespace velmora
