#include "cli/commands.h"

#include "platform/QuitOnSignal.h"

#include <QCoreApplication>
#include <spdlog/fmt/fmt.h>

#include <algorithm>
#include <cstdio>

namespace velmora {

namespace {

using Names = std::vector<std::string>; // in alphabetical order

/// Prints the names that are in one list and not in the other.
void printMissing(const char* text, const Names& names, const Names& others)
{
    Names missing;
    std::ranges::set_difference(names, others, std::back_inserter(missing));
    for (const std::string& name : missing)
        fmt::print("{}: {}\n", text, name);
}

void printMissingOutput(const OutputStatus& output)
{
    if (!output.missing.empty())
        fmt::print("{}\n", output.missing);
    std::fflush(stdout);
}

} // namespace

void live(const Selection& selection, bool plain, const OutputSettings& wanted)
{
    QuitOnSignal quitOnSignal;
    quitOnSignal.watch([] { QCoreApplication::quit(); });
    AppDelegate application;
    if (plain)
        application.playing().usePlainReading();
    application.start(wanted);
    application.waitForBank();
    select(selection, application);

    Names names = application.midiInputs()->names();
    OutputStatus output = application.output()->waitForOutput();
    fmt::print("Playing in {} from {} on {}. Press Ctrl-C to stop.\n", selection.tuning,
               names.empty() ? "no MIDI input" : fmt::format("{}", fmt::join(names, ", ")),
               output.driver == "none" ? "no sound output" : output.driver);
    printMissingOutput(output);
    std::fflush(stdout);
    QObject::connect(&application, &AppDelegate::midiDevicesChanged, &application, [&] {
        const Names before = std::exchange(names, application.midiInputs()->names());
        printMissing("Disconnected", before, names);
        printMissing("Connected", names, before);
        std::fflush(stdout);
    });
    QObject::connect(&application, &AppDelegate::outputChanged, &application, [&] {
        const OutputStatus now = application.output()->status();
        if (now.driver.empty() || (now.driver == output.driver && now.missing == output.missing))
            return;
        output = now;
        if (output.missing.empty())
            fmt::print("Playing on {}.\n", output.driver);
        printMissingOutput(output);
    });
    QCoreApplication::exec();
}

} // namespace velmora
