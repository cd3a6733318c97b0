#include "base/Text.h"
#include "cli/commands.h"
#include "cli/instrumentInfo.h"
#include "sequencer/SequenceFile.h"
#include "sequencer/scoreFile.h"
#include "tuning/ScaleTemperament.h"
#include "tuning/spelling.h"

#include <nlohmann/json.hpp>
#include <spdlog/fmt/fmt.h>

namespace velmora {

using Json = nlohmann::ordered_json;

namespace {

/// The C from which the described octave starts, as the temperament counts the keys, and its octave
/// by the frequency. See docs/decisions.md, 1.
constexpr unsigned long kShownKey = 60;
constexpr int kShownOctave = 5;

constexpr int kLastMidiKey = 127;

constexpr unsigned long kPitchClasses = 12;
constexpr const char* kPitchClassNames[kPitchClasses] = {"C",  "C♯", "D",  "E♭", "E",  "F",
                                                         "F♯", "G",  "G♯", "A",  "B♭", "B"};

/// Adds the kind of a tuning and its value as given in the file.
void describeKind(const Tuning& tuning, double base, Json& result)
{
    if (const auto* ratio = dynamic_cast<const Ratio*>(&tuning)) {
        result["kind"] = "ratio";
        result["value"] = fmt::format("{}/{}", ratio->numerator(), ratio->denominator());
    } else if (dynamic_cast<const Freq*>(&tuning) != nullptr) {
        result["kind"] = "frequency";
        result["value"] = tuning.tune(base, 0);
    } else {
        result["kind"] = "cents";
        result["value"] = tuning.cent();
    }
}

std::string valueOf(const Json& entry)
{
    const Json& value = entry["value"];
    return value.is_string() ? value.get<std::string>() : fmt::format("{}", value.get<double>());
}

/// Describes the degrees of a scale and the pitches of the keys.
Json describeKeys(const TuningDocument& document, const TransposedTemperament& temperament)
{
    Json result = {{"name", document.name()}, {"description", document.description()}};
    if (const auto* mapped = dynamic_cast<const ScaleTemperament*>(&temperament.inner())) {
        const Scale& scale = mapped->scale();
        result["degrees"] = Json::array();
        for (std::size_t i = 0; i <= scale.pitches.size(); ++i) {
            Json& entry = result["degrees"].emplace_back(Json{{"degree", i}});
            const std::size_t count = std::max<std::size_t>(scale.names.size(), 1);
            if (!scale.names.empty())
                entry["name"] = scale.names[i % count];
            const ScalePitch pitch = i == 0 ? Cent(0.0) : scale.pitches[i - 1];
            std::visit([&](const Tuning& tuning) { describeKind(tuning, 1.0, entry); }, pitch);
            entry["cents"] = centsOf(pitch);
        }
    }
    result["keys"] = Json::array();
    for (int key = 0; key <= kLastMidiKey; ++key) {
        Json& entry = result["keys"].emplace_back(Json{{"key", key}});
        entry["hertz"] = temperament.isMapped(key)
                             ? Json(temperament.getPitch(static_cast<unsigned long>(key)) / 2.0)
                             : Json();
    }
    return result;
}

Json describe(const TuningDocument& document, const Transposition& where)
{
    const TransposedTemperament temperament(document.temperament().fresh(), where);
    if (!temperament.repeatsEveryOctave())
        return describeKeys(document, temperament);
    Json result = {{"name", document.name()},
                   {"description", document.description()},
                   {"root", rootName(where.root)},
                   {"baseFrequency", temperament.baseFrequency()},
                   {"pitchClasses", Json::array()}};
    for (unsigned long pitchClass = 0; pitchClass < kPitchClasses; ++pitchClass) {
        const Tuning& tuning = temperament.getTuning(pitchClass);
        Json& entry =
            result["pitchClasses"].emplace_back(Json{{"pitchClass", kPitchClassNames[pitchClass]}});
        describeKind(tuning, temperament.baseFrequency(), entry);
        entry["cents"] = tuning.cent();
        entry["hertz"] = temperament.getPitch(kShownKey + pitchClass);
        entry["note"] = fmt::format("{}{}", kPitchClassNames[pitchClass], kShownOctave);
    }
    return result;
}

Json describe(const SequenceDocument& document, const std::string& name)
{
    Json result = {{"name", name},
                   {"isImported", document.isImported()},
                   {"extent", document.transport().extent()},
                   {"notes", Json::array()}};
    for (const Note& note : document.sequence().notes())
        result["notes"].push_back({{"key", note.key},
                                   {"channel", note.channel},
                                   {"velocity", note.velocity},
                                   {"start", note.start},
                                   {"length", note.length}});
    return result;
}

void printKeys(const Json& tuning)
{
    fmt::print("{}: tuning{}\n", tuning["name"].get<std::string>(),
               tuning.contains("degrees") ? " of " + counted(tuning["degrees"].size() - 1, "note")
                                          : std::string());
    if (const auto description = tuning["description"].get<std::string>(); !description.empty())
        fmt::print("  {}\n", description);
    for (const Json& entry : tuning.value("degrees", Json::array()))
        fmt::print("  {:>3}  {:<9} {:>18}  {:>11.5f} cents{}\n", entry["degree"].get<int>(),
                   entry["kind"].get<std::string>(), valueOf(entry), entry["cents"].get<double>(),
                   entry.contains("name") ? "  " + entry["name"].get<std::string>()
                                          : std::string());
    for (const Json& entry : tuning["keys"])
        fmt::print("  key {:>3}  {}\n", entry["key"].get<int>(),
                   entry["hertz"].is_null()
                       ? std::string("silent")
                       : fmt::format("{:>12.6f} Hz", entry["hertz"].get<double>()));
}

void printTuning(const Json& tuning)
{
    if (tuning.contains("keys")) {
        printKeys(tuning);
        return;
    }
    fmt::print("{}: tuning, base frequency {:.6f} Hz at {}{}\n", tuning["name"].get<std::string>(),
               tuning["baseFrequency"].get<double>(), tuning["root"].get<std::string>(),
               kShownOctave - 1);
    if (const auto description = tuning["description"].get<std::string>(); !description.empty())
        fmt::print("  {}\n", description);
    for (const Json& entry : tuning["pitchClasses"])
        fmt::print("  {:<3}  {:<9} {:>18}  {:>11.5f} cents  {:>12.6f} Hz\n",
                   entry["note"].get<std::string>(), entry["kind"].get<std::string>(),
                   valueOf(entry), entry["cents"].get<double>(), entry["hertz"].get<double>());
}

void printSequence(const Json& sequence)
{
    fmt::print("{}: sequence of {}, {:.3f} steps long{}\n", sequence["name"].get<std::string>(),
               counted(sequence["notes"].size(), "note"), sequence["extent"].get<double>(),
               sequence["isImported"].get<bool>() ? "; the file holds more than Velmora keeps"
                                                  : "");
    for (const Json& note : sequence["notes"])
        fmt::print("  start {:>11.4f}  length {:>10.4f}  key {:>3}  velocity {:.3f}  channel {}\n",
                   note["start"].get<double>(), note["length"].get<double>(),
                   note["key"].get<int>(), note["velocity"].get<double>(),
                   note["channel"].get<int>());
}

Json describeInstrument(const std::filesystem::path& path, const Selection& selection)
{
    AppDelegate application;
    if (selection.plain)
        application.playing().usePlainReading();
    return describe(*readInstrument(path, selection.asStops, application));
}

/// Returns a description of a file and the function that prints it as text. Throws
/// std::runtime_error with a sentence if the file cannot be read.
std::pair<Json, void (*)(const Json&)> describeFile(const std::filesystem::path& path,
                                                    const Selection& selection)
{
    if (const auto format = tuningFormatOf(path)) {
        TuningDocument document;
        if (!document.read(path, *format, selection.plain ? Reading::Plain : Reading::Musical))
            throw std::runtime_error(document.errorString());
        if (selection.mapping.empty())
            return {describe(document, selection.transposition), printTuning};
        const auto mapped = document.withMapping(selection.mapping);
        if (!mapped->errorString().empty())
            throw std::runtime_error(mapped->errorString());
        return {describe(*mapped, selection.transposition), printTuning};
    }
    if (sequenceFormatOf(path) || isReadableScore(path)) {
        Player player;
        SequenceDocument document(player, selection.plain ? Reading::Plain : Reading::Musical);
        document.read(path);
        if (!document.errorString().empty())
            throw std::runtime_error(document.errorString());
        if (!document.damage().empty())
            fmt::print(stderr, "velmora: {}\n", document.damage());
        return {describe(document, path.filename().string()), printSequence};
    }
    if (instrumentFormatOf(path))
        return {describeInstrument(path, selection), printInstrument};
    const std::string name = path.filename().string();
    if (isMappingFile(path))
        throw std::runtime_error(name + ": a keyboard mapping needs a scale; see --mapping");
    throw std::runtime_error(name + ": unrecognised file type");
}

void printFile(const std::filesystem::path& path, const Selection& selection, bool json)
{
    const auto [description, print] = describeFile(path, selection);
    if (json)
        // Names may contain invalid UTF-8.
        fmt::print("{}\n", description.dump(2, ' ', false, Json::error_handler_t::replace));
    else
        print(description);
}

} // namespace

bool info(const std::vector<std::filesystem::path>& files, const Selection& selection, bool json)
{
    bool allRead = true;
    for (const auto& path : files) {
        try {
            printFile(path, selection, json);
        } catch (const std::runtime_error& error) {
            fmt::print(stderr, "velmora: {}\n", error.what());
            allRead = false;
        }
    }
    return allRead;
}

} // namespace velmora
