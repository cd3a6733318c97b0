#include "app/Session.h"

#include "app/JsonField.h"
#include "base/FormatError.h"
#include "base/escapedPath.h"
#include "midi/PlayingSettings.h"

#include <QByteArray>

#include <algorithm>
#include <array>
#include <utility>

namespace velmora {

namespace {

constexpr int kSessionVersion = 1;
constexpr int kLastProgram = 127;
constexpr int kLastBank = 65535;
constexpr int kLastPitchClass = 11;
/// A MIDI device can send pitches from 8 to 13,290 Hz.
constexpr double kLowestHertz = 1.0, kHighestHertz = 20000.0;
/// No file holds more instruments.
constexpr int kLastChoice = 65535;

constexpr const char* kGeneralMidi = "General MIDI";

/// The names of `StopsToLoad`, in its order.
constexpr std::array<std::string_view, 3> kStopsToLoad{"all", "drawn", "fitting"};

/// The latest position of a piece in steps, as in recovery files.
constexpr double kLastStep = 1e12;

void addPath(Json& file, const std::filesystem::path& path, const std::filesystem::path& folder)
{
    file["path"] = escapePath(path);
    if (const auto fromHere = path.lexically_relative(folder); !fromHere.empty())
        file["fromHere"] = escapePath(fromHere);
}

Json describe(const std::vector<float>& volumes)
{
    Json list = Json::array();
    for (const float volume : volumes)
        list.push_back(std::clamp(volume, 0.0F, 1.0F));
    return list;
}

std::vector<float> readVolumes(const JsonField& list)
{
    std::vector<float> volumes;
    for (const JsonField& volume : list.elements())
        volumes.push_back(static_cast<float>(volume.number(0.0, 1.0)));
    return volumes;
}

Json describe(const Session::Instrument& instrument, const std::filesystem::path& folder)
{
    Json file = Json::object();
    file["kind"] = instrument.path.empty() ? kGeneralMidi : typeName(instrument.format);
    if (!instrument.path.empty()) {
        addPath(file, instrument.path, folder);
        file["plain"] = instrument.options.reading == Reading::Plain;
        file["asStops"] = instrument.options.asStops;
        file["choice"] = instrument.options.choice;
        file["to16Bit"] = instrument.options.to16Bit;
        file["toMono"] = instrument.options.toMono;
        file["load"] = kStopsToLoad.at(static_cast<std::size_t>(instrument.options.stops));
        file["bank"] = instrument.bank;
        file["program"] = instrument.program;
    }
    const auto& console = instrument.console;
    file["volumes"] = describe(console ? console->gains : instrument.gains);
    if (console) {
        file["swells"] = describe(console->swells);
        file["stops"] = describePositions(console->drawn.stops);
        file["couplers"] = describePositions(console->drawn.couplers);
    }
    return file;
}

std::filesystem::path readPath(const JsonField& field)
{
    std::filesystem::path path = unescapePath(field.text());
    if (path.empty() || path.native().find('\0') != std::string::npos)
        field.refuse("the name of a file");
    return path;
}

/// Reads the path of a file, which is absolute.
std::filesystem::path readPath(const JsonField& file, const std::filesystem::path& folder)
{
    const auto field = file.find("path");
    if (!field)
        throw FormatError('"' + file.name + "\" has no \"path\"");
    std::filesystem::path path = readPath(*field);
    if (!path.is_absolute())
        field->refuse("an absolute path");
    if (const auto fromHere = file.find("fromHere")) {
        auto near = (folder / readPath(*fromHere)).lexically_normal();
        std::error_code error;
        if (std::filesystem::exists(near, error))
            return near;
    }
    return path;
}

InstrumentFormat readFormat(const JsonField& field)
{
    constexpr std::array kFormats = {InstrumentFormat::HauptwerkXml, InstrumentFormat::Hauptwerk1,
                                     InstrumentFormat::OrganPackage, InstrumentFormat::SoundFont,
                                     InstrumentFormat::GigaSampler};
    const std::string name = field.text();
    const auto format = std::ranges::find_if(
        kFormats, [&](InstrumentFormat each) { return typeName(each) == name; });
    if (format == kFormats.end())
        field.refuse("a kind of instrument that Velmora knows");
    return *format;
}

ImportOptions readOptions(const JsonField& instrument)
{
    ImportOptions options;
    if (const auto isPlain = instrument.find("plain"); isPlain && isPlain->boolean())
        options.reading = Reading::Plain;
    if (const auto asStops = instrument.find("asStops"))
        options.asStops = asStops->boolean();
    if (const auto choice = instrument.find("choice"))
        options.choice = static_cast<std::size_t>(choice->integer(0, kLastChoice));
    if (const auto to16Bit = instrument.find("to16Bit"))
        options.to16Bit = to16Bit->boolean();
    if (const auto toMono = instrument.find("toMono"))
        options.toMono = toMono->boolean();
    if (const auto load = instrument.find("load")) {
        const auto* const stops = std::ranges::find(kStopsToLoad, load->text());
        if (stops == kStopsToLoad.end())
            load->refuse("which stops to load");
        options.stops = static_cast<StopsToLoad>(stops - kStopsToLoad.begin());
    }
    return options;
}

Session::Instrument readInstrument(const JsonField& file, const std::filesystem::path& folder)
{
    Session::Instrument instrument;
    const auto kind = file.find("kind");
    if (!kind)
        throw FormatError('"' + file.name + "\" has no \"kind\"");
    if (kind->text() != kGeneralMidi) {
        instrument.format = readFormat(*kind);
        instrument.path = readPath(file, folder);
        instrument.options = readOptions(file);
        if (const auto bank = file.find("bank"))
            instrument.bank = bank->integer(0, kLastBank);
        if (const auto program = file.find("program"))
            instrument.program = program->integer(0, kLastProgram);
    }
    if (const auto volumes = file.find("volumes"))
        instrument.gains = readVolumes(*volumes);
    if (const auto stops = file.find("stops")) {
        ConsoleState& console = instrument.console.emplace();
        console.gains = std::exchange(instrument.gains, {});
        console.drawn.stops = readPositions(*stops);
        if (const auto couplers = file.find("couplers"))
            console.drawn.couplers = readPositions(*couplers);
        if (const auto swells = file.find("swells"))
            console.swells = readVolumes(*swells);
    }
    return instrument;
}

Json describe(const Session::Tuning& tuning, const std::filesystem::path& folder)
{
    Json file = Json::object();
    if (tuning.path.empty())
        file["name"] = tuning.name;
    else
        addPath(file, tuning.path, folder);
    if (tuning.received)
        file["hertz"] = *tuning.received;
    if (!tuning.mapping.empty())
        addPath(file["mapping"], tuning.mapping, folder);
    return file;
}

KeyPitches readPitches(const JsonField& list)
{
    KeyPitches pitches{};
    const auto elements = list.elements();
    if (elements.size() != pitches.size())
        list.refuse("a list of the pitches of 128 keys");
    std::ranges::transform(elements, pitches.begin(), [](const JsonField& pitch) {
        return pitch.number(kLowestHertz, kHighestHertz);
    });
    return pitches;
}

Session::Tuning readTuning(const JsonField& file, const std::filesystem::path& folder)
{
    Session::Tuning tuning;
    const auto name = file.find("name");
    if (name)
        tuning.name = name->text();
    else
        tuning.path = readPath(file, folder);
    if (const auto hertz = file.find("hertz"); hertz && name)
        tuning.received = readPitches(*hertz);
    if (const auto mapping = file.find("mapping"))
        tuning.mapping = readPath(*mapping, folder);
    return tuning;
}

void requireSession(const JsonField& file)
{
    const auto version = file.value.is_object() ? file.find("velmoraSession") : std::nullopt;
    if (!version || !version->value.is_number_unsigned())
        throw FormatError("this is not a session of Velmora");
    if (version->value > kSessionVersion)
        throw FormatError("a later version of Velmora has written this session");
}

} // namespace

std::string encodeSession(const Session& session, const std::filesystem::path& folder)
{
    Json file = Json::object();
    file["velmoraSession"] = kSessionVersion;
    file["instruments"] = Json::array();
    for (const Session::Instrument& instrument : session.instruments)
        file["instruments"].push_back(describe(instrument, folder));
    file["currentInstrument"] = session.currentInstrument;
    file["program"] = session.program;
    file["tunings"] = Json::array();
    for (const Session::Tuning& tuning : session.tunings)
        file["tunings"].push_back(describe(tuning, folder));
    file["tuning"] = session.tuning;
    file["root"] = session.standing.root;
    if (session.standing.a)
        file["a"] = *session.standing.a;
    file["transposition"] = session.transposition;
    file["pieces"] = Json::array();
    for (const Session::Piece& piece : session.pieces) {
        Json& entry = file["pieces"].emplace_back(Json::object());
        addPath(entry, piece.path, folder);
        entry["position"] = piece.position;
    }
    file["currentPiece"] = session.currentPiece;
    file["layout"] = QByteArray::fromStdString(session.layout).toBase64().toStdString();
    return file.dump(2) + '\n';
}

Session decodeSession(std::string_view text, const std::filesystem::path& folder)
{
    const Json json = parseJson(text);
    const JsonField file{json, {}};
    requireSession(file);
    Session session;
    if (const auto instruments = file.find("instruments"))
        for (const JsonField& instrument : instruments->records())
            session.instruments.push_back(readInstrument(instrument, folder));
    if (const auto current = file.find("currentInstrument"))
        session.currentInstrument = current->index(session.instruments.size());
    if (const auto program = file.find("program"))
        session.program = static_cast<std::uint8_t>(program->integer(0, kLastProgram));
    if (const auto tunings = file.find("tunings"))
        for (const JsonField& tuning : tunings->records())
            session.tunings.push_back(readTuning(tuning, folder));
    if (const auto tuning = file.find("tuning"))
        session.tuning = tuning->text();
    if (const auto root = file.find("root"))
        session.standing.root = root->integer(0, kLastPitchClass);
    if (const auto a = file.find("a"))
        session.standing.a = a->number(Transposition::kLowestA, Transposition::kHighestA);
    if (const auto transposition = file.find("transposition"))
        session.transposition = transposition->integer(-kMaxTransposition, kMaxTransposition);
    if (const auto pieces = file.find("pieces"))
        for (const JsonField& piece : pieces->records()) {
            const auto position = piece.find("position");
            session.pieces.push_back(
                {readPath(piece, folder), position ? position->number(0.0, kLastStep) : 0.0});
        }
    if (const auto current = file.find("currentPiece"))
        session.currentPiece = current->index(session.pieces.size());
    if (const auto layout = file.find("layout"))
        session.layout =
            QByteArray::fromBase64(QByteArray::fromStdString(layout->text())).toStdString();
    return session;
}

} // namespace velmora
