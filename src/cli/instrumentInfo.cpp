#include "cli/instrumentInfo.h"

#include "base/Text.h"
#include "sound/OrganInstrument.h"

#include <nlohmann/json.hpp>
#include <spdlog/fmt/fmt.h>

#include <map>

namespace velmora {

using Json = nlohmann::ordered_json;

namespace {

/// The number of keys that use each of an instrument's sounds.
using Uses = std::map<const Sound*, int>;

Uses countUses(const ALInstrument& instrument)
{
    Uses uses;
    for (const InstrumentStop& stop : instrument.stops()) {
        for (const Sample& sample : stop.samples)
            ++uses[sample.sound()];
    }
    return uses;
}

Json describe(const InstrumentStop& stop, const Uses& uses)
{
    Json result = {{"name", stop.name}, {"volume", stop.volume}, {"keys", Json::array()}};
    for (std::size_t key = 0; key < kKeys; ++key) {
        const Sample& sample = stop.samples[key];
        const Sound* sound = sample.sound();
        if (sound == nullptr)
            continue;
        result["keys"].push_back({{"key", key},
                                  {"rootPitch", sample.rootPitch()},
                                  {"frames", sound->frames()},
                                  {"rate", sound->rate()},
                                  {"channels", sound->channels()},
                                  {"shared", uses.at(sound) > 1},
                                  {"extended", stop.extended[key]}});
    }
    return result;
}

Json describe(const Program& program)
{
    return {{"bank", program.bank},
            {"program", program.number},
            {"name", program.name},
            {"isPercussion", program.isPercussion}};
}

Json describe(const ImportReport& report)
{
    Json result = {{"ranks", report.ranks},
                   {"pipes", report.pipes},
                   {"samples", report.samples},
                   {"skipped", Json::array()}};
    for (const auto& [file, why] : report.skipped)
        result["skipped"].push_back({{"file", file}, {"why", why}});
    return result;
}

Json describe(const Console& console)
{
    const ConsoleDefinition& definition = console.definition();
    const ConsoleState& state = console.state();
    Json result = {
        {"divisions", Json::array()}, {"stops", Json::array()}, {"couplers", Json::array()}};
    for (const ConsoleDefinition::Division& division : definition.divisions)
        result["divisions"].push_back({{"name", division.name},
                                       {"pedal", division.isPedal},
                                       {"lowestKey", division.lowestKey},
                                       {"highestKey", division.highestKey}});
    for (std::size_t i = 0; i < definition.stops.size(); ++i)
        result["stops"].push_back({{"name", definition.stops[i].name},
                                   {"division", definition.stops[i].division},
                                   {"drawn", bool{state.drawn.stops[i]}}});
    for (std::size_t i = 0; i < definition.couplers.size(); ++i)
        result["couplers"].push_back({{"name", definition.couplers[i].name},
                                      {"from", definition.couplers[i].from},
                                      {"to", definition.couplers[i].to},
                                      {"shift", definition.couplers[i].shift},
                                      {"drawn", bool{state.drawn.couplers[i]}}});
    return result;
}

/// Prints the stops, by their numbers, and the couplers of each division.
void printConsole(const Json& console)
{
    const auto mark = [](const Json& knob) { return knob["drawn"].get<bool>() ? "drawn" : ""; };
    for (std::size_t division = 0; division < console["divisions"].size(); ++division) {
        const Json& keys = console["divisions"][division];
        fmt::print("{}, keys {} to {}\n", keys["name"].get<std::string>(),
                   keys["lowestKey"].get<int>(), keys["highestKey"].get<int>());
        for (std::size_t i = 0; i < console["stops"].size(); ++i)
            if (const Json& stop = console["stops"][i]; stop["division"] == division)
                fmt::print("  stop {:>3}  {:5}  {}\n", i, mark(stop),
                           stop["name"].get<std::string>());
        for (const Json& coupler : console["couplers"])
            if (coupler["from"] == division)
                fmt::print("  coupler   {:5}  {}\n", mark(coupler),
                           coupler["name"].get<std::string>());
    }
}

void printStop(const char* kind, std::size_t index, const Json& stop)
{
    const Json& keys = stop["keys"];
    std::size_t extended = 0;
    for (const Json& key : keys)
        extended += key["extended"].get<bool>() ? 1U : 0U;
    fmt::print("  {} {:>3}  volume {:.3f}  {:>3} keys of its own, {:>3} extended  {}\n", kind,
               index, stop["volume"].get<double>(), keys.size() - extended, extended,
               stop["name"].get<std::string>());
}

void printSkipped(const Json& report)
{
    for (const Json& skipped : report["skipped"])
        fmt::print("  {}: {}\n", skipped["file"].get<std::string>(),
                   skipped["why"].get<std::string>());
}

void printBank(const Json& bank)
{
    fmt::print("{}: {} of {}, {} bytes of sound\n", bank["name"].get<std::string>(),
               bank["kind"].get<std::string>(), counted(bank["programs"].size(), "program"),
               bank["usage"].get<std::int64_t>());
    for (const Json& program : bank["programs"])
        fmt::print("  bank {:>3}  program {:>3}  {}\n", program["bank"].get<int>(),
                   program["program"].get<int>(), program["name"].get<std::string>());
    printSkipped(bank["report"]);
}

} // namespace

Json describe(const InstrumentDocument& document)
{
    Json result = {{"name", document.name()},
                   {"kind", typeName(document.format())},
                   {"usage", document.size()}};
    if (const ALInstrument* sampled = sampledRanksOf(*document.instrument())) {
        result["stops"] = Json::array();
        const Uses uses = countUses(*sampled);
        for (const InstrumentStop& stop : sampled->stops())
            result["stops"].push_back(describe(stop, uses));
    } else {
        result["programs"] = Json::array();
        for (const Program& program : document.instrument()->programs())
            result["programs"].push_back(describe(program));
    }
    if (const auto* organ = dynamic_cast<const OrganInstrument*>(document.instrument()))
        result["console"] = describe(organ->console());
    result["report"] = describe(document.report());
    return result;
}

void printInstrument(const Json& instrument)
{
    if (instrument.contains("programs")) {
        printBank(instrument);
        return;
    }
    const bool hasConsole = instrument.contains("console");
    const char* const kind = hasConsole ? "rank" : "stop";
    const Json& report = instrument["report"];
    fmt::print("{}: {} instrument of {}, {} bytes of sound\n",
               instrument["name"].get<std::string>(), instrument["kind"].get<std::string>(),
               counted(instrument["stops"].size(), kind), instrument["usage"].get<std::int64_t>());
    if (hasConsole)
        printConsole(instrument["console"]);
    for (std::size_t i = 0; i < instrument["stops"].size(); ++i)
        printStop(kind, i, instrument["stops"][i]);
    fmt::print("Loaded {}, {}, {}; left out {}\n",
               counted(report["ranks"].get<std::size_t>(), "rank"),
               counted(report["pipes"].get<std::size_t>(), "pipe"),
               counted(report["samples"].get<std::size_t>(), "sample"), report["skipped"].size());
    printSkipped(report);
}

} // namespace velmora
