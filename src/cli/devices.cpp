#include "cli/commands.h"
#include "cli/deviceInfo.h"

#include <nlohmann/json.hpp>
#include <spdlog/fmt/fmt.h>

namespace velmora {

using Json = nlohmann::ordered_json;

namespace {

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
    const std::string bank = usableBank();
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
