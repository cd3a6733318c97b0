#include "cli/commands.h"
#include "cli/deviceInfo.h"
#include "cli/systemFindings.h"
#include "platform/runInChild.h"

#include <nlohmann/json.hpp>
#include <spdlog/fmt/fmt.h>

#include <filesystem>

namespace velmora {

using Json = nlohmann::ordered_json;

namespace {

/// Returns a description made in a child process, or null if the part of the system that it
/// describes hangs or crashes.
Json askInChild(Json (*describe)())
{
    const auto text =
        runInChild([&] { return describe().dump(-1, ' ', false, Json::error_handler_t::replace); },
                   kLongestSearch);
    return text ? Json::parse(*text) : Json();
}

constexpr const char* kHowToGetSound =
    "connect a sound card, or start PipeWire, JACK or PulseAudio";

Finding findOutputs()
{
    std::string found;
    const Json outputs = askInChild(describeOutputs);
    if (outputs.is_null())
        return {"Sound outputs", "", "a sound server does not answer; restart it"};
    for (const Json& output : outputs) {
        const auto driver = output["driver"].get<std::string>();
        if (driver == "none")
            continue;
        found += (found.empty() ? "" : ", ") + driver;
        for (const Json& device : output["devices"])
            found += ", " + driver + ":" + device["name"].get<std::string>();
    }
    return {"Sound outputs", found, found.empty() ? kHowToGetSound : ""};
}

Finding findOutput()
{
    const Json output = askInChild(describeAudio);
    if (output.is_null())
        return {"Sound output in use", "", kHowToGetSound};
    return {"Sound output in use",
            fmt::format("{}, {} Hz, periods of {} frames", output["driver"].get<std::string>(),
                        output["rate"].get<double>(), output["periodFrames"].get<std::size_t>()),
            ""};
}

Finding findInputs()
{
    const Json midi = askInChild(describeMidi);
    if (!midi.is_null() && !midi["inputs"].empty())
        return {"MIDI inputs",
                fmt::format("{} ({})",
                            fmt::join(midi["inputs"].get<std::vector<std::string>>(), ", "),
                            midi["service"].get<std::string>()),
                ""};
    return {"MIDI inputs", "",
            std::filesystem::exists("/dev/snd/seq")
                ? "connect a MIDI keyboard"
                : "connect a MIDI keyboard, and load the ALSA sequencer with modprobe snd-seq"};
}

Finding findBank()
{
    const auto bank = runInChild(usableBank, kLongestSearch);
    if (bank && !bank->empty())
        return {"General MIDI bank", *bank, ""};
    return {"General MIDI bank", "",
            "choose a SoundFont in the preferences, or install the package timgm6mb-soundfont"};
}

} // namespace

void doctor(bool json)
{
    std::vector<Finding> findings = systemFindings();
    for (const auto& find : {findOutputs, findOutput, findInputs, findBank})
        findings.push_back(find());
    Json all = Json::array();
    for (const auto& [topic, found, advice] : findings) {
        if (json)
            all.push_back({{"topic", topic}, {"found", found}, {"advice", advice}});
        else if (advice.empty())
            fmt::print("OK       {}: {}\n", topic, found);
        else
            fmt::print("missing  {}: {}; {}\n", topic, found.empty() ? "none" : found, advice);
    }
    if (json)
        fmt::print("{}\n", all.dump(2, ' ', false, Json::error_handler_t::replace));
}

} // namespace velmora
