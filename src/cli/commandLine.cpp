#include "cli/commandLine.h"

#include "base/Log.h"
#include "cli/commands.h"
#include "desktop/shell/runDesktop.h"

#include <CLI/CLI.hpp>
#include <QCoreApplication>
#include <spdlog/fmt/fmt.h>

#include <filesystem>

namespace velmora {

namespace {

constexpr int kFailed = 1;
constexpr int kWrongUsage = 2;

/// A week of music.
constexpr double kLastStep = 1e7;

/// The words of the command line.
struct Words {
    std::string sequence, output, instrument;
    Selection selection;
    std::vector<std::string> stops;
    RenderOptions options;
    RenderLoop loop{0.0, 0.0, 2};
    std::vector<std::string> files;
    bool json = false;
};

/// As CLI::Range, which lets NaN through.
CLI::Validator range(double low, double high)
{
    const auto check = [low, high](const std::string& text) -> std::string {
        double value = 0.0;
        if (CLI::detail::lexical_cast(text, value) && value >= low && value <= high)
            return {};
        return fmt::format("Value {} not in range {:g} to {:g}", text, low, high);
    };
    return {check, fmt::format("FLOAT in [{:g} - {:g}]", low, high)};
}

/// Reads "I=GAIN".
std::pair<std::size_t, float> parseStop(const std::string& text)
{
    std::size_t stop = 0;
    float gain = 0.0F;
    const std::size_t sign = text.find('=');
    if (sign == std::string::npos || !CLI::detail::lexical_cast(text.substr(0, sign), stop) ||
        !CLI::detail::lexical_cast(text.substr(sign + 1), gain) || !(gain >= 0.0F && gain <= 1.0F))
        throw CLI::ValidationError("--stop", "\"" + text +
                                                 "\" is not the number of a stop and a gain from "
                                                 "0 to 1, as in 0=0.8");
    return {stop, gain};
}

void addSelection(CLI::App& command, Words& words)
{
    command
        .add_option("--tuning", words.selection.tuning,
                    "Equal, \"Quartercomma Meantone\", Dynamic, or a .scl or .mtx file")
        ->capture_default_str();
    CLI::Option* program =
        command.add_option("--program", words.selection.program, "General MIDI program, 0 to 127")
            ->check(CLI::Range(0, 127));
    command
        .add_option("--instrument", words.instrument,
                    "A .sf2, .gig, .organ_hauptwerk_xml or .organ file to play")
        ->excludes(program);
    command
        .add_option("--stop", words.stops, "Gain of a stop: its number from 0, =, 0 to 1; repeat")
        ->take_all()
        ->allow_extra_args(false)
        ->type_name("I=GAIN");
}

CLI::App* addRender(CLI::App& program, Words& words)
{
    CLI::App* command = program.add_subcommand("render", "Render a MIDI file to a sound file");
    command->add_option("sequence", words.sequence, "The MIDI file")->required();
    command->add_option("-o,--output", words.output, "The .wav, .flac or .ogg file to write")
        ->required();
    addSelection(*command, words);
    command->add_option("--rate", words.options.rate, "Frames in a second")
        ->capture_default_str()
        ->check(range(8000.0, 96000.0));
    command->add_option("--tail", words.options.tailSeconds, "Seconds to go on after the end")
        ->capture_default_str()
        ->check(range(0.0, 3600.0));
    CLI::Option* start = command->add_option("--loop-start", words.loop.start,
                                             "First step of a stretch to be played alone");
    CLI::Option* end = command->add_option("--loop-end", words.loop.end, "Its last step");
    CLI::Option* times = command->add_option("--loops", words.loop.times, "How often to play it");
    start->needs(end)->check(range(0.0, kLastStep));
    end->needs(start)->check(range(0.0, kLastStep));
    times->needs(start)->capture_default_str()->check(CLI::Range(1, 10000));
    return command;
}

CLI::App* addJson(CLI::App* command, Words& words)
{
    command->add_flag("--json", words.json, "Print JSON");
    return command;
}

void runRender(const CLI::App& command, Words& words)
{
    if (command.count("--loop-end") > 0) {
        if (!(words.loop.start < words.loop.end))
            throw CLI::ValidationError("--loop-end", "must lie after --loop-start");
        words.options.loop = words.loop;
    }
    render(words.sequence, words.output, words.selection, words.options);
}

int runWindows(int argc, char** argv, const std::vector<std::string>& files)
{
    for (const std::string& file : files) {
        if (!std::filesystem::exists(file))
            throw UsageError("\"" + file + "\" is neither a file nor a command");
    }
    return runDesktop(argc, argv, files);
}

int run(CLI::App& program, int argc, char** argv)
{
    Words words;
    program.set_version_flag("--version", "velmora " VELMORA_VERSION);
    program.require_subcommand(0, 1);
    program.add_option("files", words.files,
                       "Sequences, instruments and tunings to open in the windows");
    CLI::App* renderCommand = addRender(program, words);
    CLI::App* infoCommand =
        addJson(program.add_subcommand(
                    "info", "Print what Velmora makes of tuning, instrument and MIDI files"),
                words);
    infoCommand->add_option("files", words.files, "The files")->required();
    CLI::App* liveCommand = program.add_subcommand("live", "Play from the MIDI inputs");
    addSelection(*liveCommand, words);
    CLI::App* devicesCommand = addJson(
        program.add_subcommand("devices", "List MIDI inputs, sound output and bank"), words);
    program.parse(argc, argv);
    if (program.get_subcommands().empty())
        return runWindows(argc, argv, words.files);

    const QCoreApplication application(argc, argv);
    words.selection.instrument = words.instrument;
    for (const std::string& stop : words.stops)
        words.selection.stops.push_back(parseStop(stop));
    if (*renderCommand)
        runRender(*renderCommand, words);
    if (*infoCommand)
        return info({words.files.begin(), words.files.end()}, words.json) ? 0 : kFailed;
    if (*liveCommand)
        live(words.selection);
    if (*devicesCommand)
        devices(words.json);
    return 0;
}

} // namespace

int runCommandLine(int argc, char** argv)
{
    setLogLevel(spdlog::level::warn);
    CLI::App program("Plays keyboard instruments in historical and adaptive tunings", "velmora");
    try {
        return run(program, argc, argv);
    } catch (const CLI::ParseError& error) {
        return program.exit(error) == 0 ? 0 : kWrongUsage;
    } catch (const UsageError& error) {
        fmt::print(stderr, "velmora: {}\n", error.what());
        return kWrongUsage;
    } catch (const std::exception& error) {
        fmt::print(stderr, "velmora: {}\n", error.what());
        return kFailed;
    }
}

} // namespace velmora
