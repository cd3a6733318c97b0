#include "cli/commands.h"

#include "audio/Synthesizer.h"

#include <nlohmann/json.hpp>
#include <spdlog/fmt/fmt.h>

#include <chrono>
#include <thread>

namespace velmora {

using Json = nlohmann::ordered_json;

namespace {

/// Waits up to a second for the output to play its first period. Returns the period's length in
/// frames, or 0 if there was none.
std::size_t waitForPeriod(const AudioOutput& output)
{
    using namespace std::chrono_literals;
    for (int i = 0; i < 100 && output.period() == 0; ++i)
        std::this_thread::sleep_for(10ms);
    return output.period();
}

Json describeMidi()
{
    const MidiInputs inputs([](MidiPacket) {});
    return {{"service", inputs.api()}, {"inputs", inputs.names()}};
}

Json describeAudio()
{
    const auto output = AudioOutput::open();
    if (!output)
        return nullptr;
    const std::size_t period = waitForPeriod(*output);
    return {{"driver", output->driver()},
            {"rate", output->rate()},
            {"periodFrames", period},
            {"periodMilliseconds", 1000.0 * static_cast<double>(period) / output->rate()}};
}

} // namespace

void devices(bool json)
{
    const Json midi = describeMidi();
    const Json audio = describeAudio();
    const std::string bank = Synthesizer(48000.0, generalMidiBanks()).bank().string();
    if (json) {
        const Json all = {{"midi", midi},
                          {"audio", audio},
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
    fmt::print("General MIDI bank: {}\n", bank.empty() ? "none" : bank);
}

} // namespace velmora
