#include "cli/PanicKey.h"
#include "cli/commands.h"
#include "cli/names.h"

#include "app/tuningWarning.h"
#include "platform/SignalNotifier.h"
#include "platform/terminationSignals.h"

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

std::string soundTitle(AppDelegate& application)
{
    std::string title = application.instrumentName();
    application.player().with([&](const Instrument& instrument, const Temperament&) {
        if (instrument.hasSubMenu())
            title = programTitle(instrument);
        else if (!instrument.programs().empty())
            title += ", " + programTitle(instrument);
    });
    return title;
}

sigset_t signalsForPanic()
{
    sigset_t result;
    sigemptyset(&result);
    sigaddset(&result, SIGUSR1);
    return result;
}

} // namespace

void live(const Selection& selection, const OutputSettings& wanted)
{
    SignalNotifier quitOnSignal(terminationSignals());
    quitOnSignal.watch([] { QCoreApplication::quit(); });
    SignalNotifier panicSignal(signalsForPanic());
    AppDelegate application;
    if (selection.plain)
        application.playing().usePlainReading();
    application.start(wanted);
    application.waitForBank();
    select(selection, application);

    Names names = application.midiInputs()->names();
    OutputStatus output = application.output()->waitForOutput();
    fmt::print("Playing {} in {} from {} on {}.\n", soundTitle(application),
               tuningTitle(application.tunings()),
               names.empty() ? "no MIDI input" : fmt::format("{}", fmt::join(names, ", ")),
               output.driver == "none" ? "no sound output" : output.driver);
    fmt::print(
        "Press P and Return, or send the signal USR1, to silence everything; press Ctrl-C to "
        "stop.\n");
    if (const std::string warning = tuningWarning(application); !warning.empty())
        fmt::print("Note: {}.\n", warning);
    printMissingOutput(output);
    const auto silence = [&] {
        application.silenceAll();
        fmt::print("Silence.\n");
        std::fflush(stdout);
    };
    panicSignal.watch(silence);
    const PanicKey panicKey(silence);
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
