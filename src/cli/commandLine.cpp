#include "cli/commandLine.h"

#include "app/preferredOutput.h"
#include "audio/outputDrivers.h"
#include "base/Log.h"
#include "cli/commands.h"
#include "cli/names.h"
#include "cli/version.h"
#include "desktop/shell/runDesktop.h"
#include "tuning/keyName.h"

#include <CLI/CLI.hpp>
#include <QCoreApplication>
#include <spdlog/fmt/fmt.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <optional>

namespace velmora {

namespace {

constexpr int kFailure = 1;
constexpr int kUsageError = 2;

constexpr const char* kAsStops =
    "Lay out the instruments of a SoundFont as stops instead of playing its presets";

constexpr double kLastStep = 1e7; ///< About a week of music.

/// The values of the command line's arguments.
struct Arguments {
    std::string sequence, output, stems, instrument, mapping;
    Selection selection;
    std::vector<std::string> stops;
    std::string root;
    RenderOptions options;
    RenderLoop loop{0.0, 0.0, 2};
    std::vector<std::size_t> voices; ///< Counted from 1.
    std::optional<double> tempo;     ///< In beats a minute.
    std::vector<std::string> files;
    std::string device; ///< "DRIVER" or "DRIVER:DEVICE" of the sound output.
    std::size_t period = 0;
    bool json = false;
    bool watches = false;
};

/// Like CLI::Range, but rejects NaN.
CLI::Validator range(double low, double high)
{
    const auto check = [low, high](const std::string& text) -> std::string {
        double value = 0.0;
        if (CLI::detail::lexical_cast(text, value) && value >= low && value <= high)
            return {};
        return fmt::format("{} is not between {:g} and {:g}", text, low, high);
    };
    return {check, fmt::format("FLOAT in [{:g} - {:g}]", low, high)};
}

/// Parses "I=GAIN".
std::pair<std::size_t, float> parseStop(const std::string& text)
{
    std::size_t stop = 0;
    float gain = 0.0F;
    const std::size_t sign = text.find('=');
    if (sign == std::string::npos || !CLI::detail::lexical_cast(text.substr(0, sign), stop) ||
        !CLI::detail::lexical_cast(text.substr(sign + 1), gain) || !(gain >= 0.0F && gain <= 1.0F))
        throw CLI::ValidationError("--stop", "\"" + text +
                                                 "\" is not a stop number and a gain from 0 to "
                                                 "1, as in 0=0.8");
    return {stop, gain};
}

/// Adds the options for how the instrument is read.
void addReading(CLI::App& command, Arguments& arguments)
{
    command.add_flag("--as-stops", arguments.selection.asStops, kAsStops);
    command.add_flag("--plain", arguments.selection.plain,
                     "Read files plainly: each key of an instrument has one sample, without loops "
                     "and releases, and scales have twelve notes");
}

/// Adds the option for how both MIDI devices and instruments are read.
void addPlain(CLI::App& command, Arguments& arguments)
{
    command.add_flag(
        "--plain", arguments.selection.plain,
        "Read MIDI devices plainly, without pedals, wheels, learned controllers, velocity curve "
        "and transposition, and files plainly: one sample for each key of an instrument, and "
        "scales of twelve notes");
}

void addMapping(CLI::App& command, Arguments& arguments)
{
    command.add_option("--mapping", arguments.mapping,
                       "The .kbm file that says which keys play which notes of the tuning");
}

/// Adds the options for where a tuning stands.
void addTransposition(CLI::App& command, Arguments& arguments)
{
    command
        .add_option("--root", arguments.root,
                    "The key on which the tuning stands, as in D or Eb; as a rule C")
        ->type_name("KEY");
    command
        .add_option("--a", arguments.selection.transposition.a,
                    "The pitch of A in hertz; as a rule the tuning has it where C is as in equal "
                    "temperament of 440 Hz")
        ->type_name("HERTZ")
        ->check(range(Transposition::kLowestA, Transposition::kHighestA));
}

/// Returns the pitch class of the key that the tuning shall stand on.
int parseRoot(const std::string& text)
{
    const auto root = pitchClassOf(text);
    if (!root)
        throw CLI::ValidationError("--root", "\"" + text +
                                                 "\" is not the name of a key, such as C, F# or "
                                                 "Eb");
    return *root;
}

void addSelection(CLI::App& command, Arguments& arguments)
{
    command
        .add_option("--tuning", arguments.selection.tuning,
                    "Equal, \"Quartercomma Meantone\", Dynamic, \"Following Meantone\", Pure, a "
                    "temperament of the literature such as Vallotti, or a .scl, .ascl, .tun or "
                    ".mtx file; a name may be shortened to the beginning of one of its words")
        ->type_name("NAME|FILE")
        ->capture_default_str();
    addMapping(command, arguments);
    addTransposition(command, arguments);
    command
        .add_option("--program", arguments.selection.program,
                    "Program of the General MIDI player or of a SoundFont: its number from 0 to "
                    "127, or its name, as in \"Church Organ\"")
        ->type_name("NUMBER|NAME");
    command
        .add_option("--bank", arguments.selection.bank,
                    "Bank of that program in a SoundFont; 128 for drum kits")
        ->check(CLI::NonNegativeNumber);
    command.add_option("--instrument", arguments.instrument,
                       "The .sf2, .gig, .organ_hauptwerk_xml, .organ or .orgue file to play");
    command.add_option("--stop", arguments.stops, "Gain of a stop, as in 0=0.8; may be repeated")
        ->take_all()
        ->allow_extra_args(false)
        ->type_name("I=GAIN");
}

CLI::App* addRender(CLI::App& program, Arguments& arguments)
{
    CLI::App* command = program.add_subcommand(
        "render", "Render a piece to a sound file, a MIDI file in a tuning, or a score");
    command->add_option("sequence", arguments.sequence, "The MIDI file or MusicXML score")
        ->required();
    command->add_option(
        "-o,--output", arguments.output,
        "The .wav, .flac, .ogg, .opus or .mp3 file to write, a .mid file that General MIDI devices "
        "play in the tuning, or a .musicxml or .ly score");
    command
        ->add_option("--stems", arguments.stems,
                     "The folder for a sound file of each voice, in the format of the output, or "
                     "else WAV")
        ->type_name("FOLDER");
    addSelection(*command, arguments);
    addReading(*command, arguments);
    command->add_option("--rate", arguments.options.rate, "Frames per second")
        ->capture_default_str()
        ->check(range(8000.0, 192000.0));
    command
        ->add_option("--tail", arguments.options.tailSeconds, "Seconds to continue after the end")
        ->capture_default_str()
        ->check(range(0.0, 3600.0));
    CLI::Option* start = command->add_option("--loop-start", arguments.loop.start,
                                             "First step of the interval to play on its own");
    CLI::Option* end = command->add_option("--loop-end", arguments.loop.end, "End of the interval");
    CLI::Option* times =
        command->add_option("--loops", arguments.loop.times, "How many times to play it");
    start->needs(end)->check(range(0.0, kLastStep));
    end->needs(start)->check(range(0.0, kLastStep));
    times->needs(start)->capture_default_str()->check(CLI::Range(1, 10000));
    command
        ->add_option("--tempo", arguments.tempo,
                     "Beats a minute at the beginning of the piece; its changes of tempo stay in "
                     "proportion")
        ->check(range(1.0, 1000.0));
    command
        ->add_option("--voice", arguments.voices,
                     "Render only the notes of this MIDI channel, from 1 to 16, tuned as in the "
                     "whole piece; may be repeated")
        ->take_all()
        ->allow_extra_args(false)
        ->type_name("NUMBER")
        ->check(CLI::Range(1, midi::kChannels));
    return command;
}

CLI::App* addJson(CLI::App* command, Arguments& arguments)
{
    command->add_flag("--json", arguments.json, "Print JSON");
    return command;
}

/// Returns the options that it adds.
std::array<CLI::Option*, 2> addOutput(CLI::App& command, Arguments& arguments)
{
    CLI::Option* output =
        command
            .add_option(
                "--output", arguments.device,
                fmt::format("The sound output, for this time only: {}, or one of their devices",
                            fmt::join(outputDrivers(), ", ")))
            ->type_name("DRIVER[:DEVICE]");
    CLI::Option* period =
        command.add_option("--period", arguments.period, "Frames in a period, for this time only")
            ->check(CLI::Range(16, 8192));
    return {output, period};
}

/// Returns the preferred output, as far as the command line does not name another one.
OutputSettings chosenOutput(const Arguments& arguments)
{
    OutputSettings output = preferredOutput();
    if (!arguments.device.empty()) {
        const std::size_t colon = arguments.device.find(':');
        output.driver = arguments.device.substr(0, colon);
        output.device =
            colon == std::string::npos ? std::string() : arguments.device.substr(colon + 1);
        const auto drivers = outputDrivers();
        if (std::find(drivers.begin(), drivers.end(), output.driver) == drivers.end())
            throw UsageError(fmt::format("there is no output \"{}\"; use {}, or DRIVER:DEVICE",
                                         output.driver, fmt::join(drivers, ", ")));
    }
    if (arguments.period != 0)
        output.period = arguments.period;
    return output;
}

void runRender(const CLI::App& command, Arguments& arguments)
{
    if (arguments.output.empty() && arguments.stems.empty())
        throw CLI::RequiredError("--output or --stems");
    if (command.count("--loop-end") > 0) {
        if (!(arguments.loop.start < arguments.loop.end))
            throw CLI::ValidationError("--loop-end", "must be greater than --loop-start");
        arguments.options.loop = arguments.loop;
    }
    if (arguments.tempo)
        arguments.options.speed =
            *arguments.tempo / tempoOf(arguments.sequence, arguments.selection.plain);
    if (!arguments.voices.empty())
        arguments.options.voices.reset();
    for (const std::size_t voice : arguments.voices)
        arguments.options.voices.set(voice - 1);
    if (arguments.stems.empty())
        render(arguments.sequence, arguments.output, arguments.selection, arguments.options);
    else
        renderStems(arguments.sequence, arguments.stems, arguments.output, arguments.selection,
                    arguments.options);
}

int runWindows(int argc, char** argv, const Arguments& arguments)
{
    for (const std::string& file : arguments.files) {
        if (!std::filesystem::exists(file))
            throw UsageError("\"" + file + "\" is neither a file nor a command");
    }
    return runDesktop(argc, argv, arguments.files, arguments.selection.plain,
                      chosenOutput(arguments));
}

int run(CLI::App& program, int argc, char** argv)
{
    Arguments arguments;
    program.set_version_flag("--version", "velmora " + version());
    program.require_subcommand(0, 1);
    program.add_option("files", arguments.files,
                       "MIDI files, scores, instruments, tunings and sessions to open");
    CLI::App* renderCommand = addRender(program, arguments);
    CLI::App* infoCommand = addJson(
        program.add_subcommand("info", "Describe tuning, instrument and MIDI files"), arguments);
    infoCommand->add_option("files", arguments.files, "The files")->required();
    addReading(*infoCommand, arguments);
    addMapping(*infoCommand, arguments);
    addTransposition(*infoCommand, arguments);
    CLI::App* liveCommand = program.add_subcommand("live", "Play from the MIDI inputs");
    addSelection(*liveCommand, arguments);
    liveCommand->add_flag("--as-stops", arguments.selection.asStops, kAsStops);
    addPlain(program, arguments);
    addPlain(*liveCommand, arguments);
    addOutput(program, arguments);
    addOutput(*liveCommand, arguments);
    CLI::App* devicesCommand =
        addJson(program.add_subcommand(
                    "devices", "List the MIDI inputs, the sound outputs and the General MIDI bank"),
                arguments);
    CLI::Option* watch = devicesCommand->add_flag(
        "--watch", arguments.watches,
        "Print the delay, the load and the messages of live playing each second");
    for (CLI::Option* option : addOutput(*devicesCommand, arguments))
        option->needs(watch);
    CLI::App* doctorCommand =
        addJson(program.add_subcommand("doctor", "Show what a report of a fault needs"), arguments);
    program.parse(argc, argv);
    if (program.get_subcommands().empty())
        return runWindows(argc, argv, arguments);
    for (const char* option : {"--plain", "--output", "--period"})
        if (program.count(option) > 0)
            throw CLI::ValidationError(option, "must follow the command");

    if (*doctorCommand) {
        doctor(arguments.json);
        return 0;
    }
    const QCoreApplication application(argc, argv);
    arguments.selection.instrument = arguments.instrument;
    arguments.selection.mapping = arguments.mapping;
    if (!arguments.root.empty())
        arguments.selection.transposition.root = parseRoot(arguments.root);
    for (const std::string& stop : arguments.stops)
        arguments.selection.stops.push_back(parseStop(stop));
    if (*renderCommand)
        runRender(*renderCommand, arguments);
    if (*infoCommand)
        return info({arguments.files.begin(), arguments.files.end()}, arguments.selection,
                    arguments.json)
                   ? 0
                   : kFailure;
    if (*liveCommand)
        live(arguments.selection, chosenOutput(arguments));
    if (*devicesCommand && arguments.watches)
        watchDevices(arguments.json, chosenOutput(arguments));
    else if (*devicesCommand)
        devices(arguments.json);
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
        return program.exit(error) == 0 ? 0 : kUsageError;
    } catch (const UsageError& error) {
        fmt::print(stderr, "velmora: {}\n", error.what());
        return kUsageError;
    } catch (const std::exception& error) {
        fmt::print(stderr, "velmora: {}\n", error.what());
        return kFailure;
    }
}

} // namespace velmora
