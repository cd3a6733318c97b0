#include "cli/commands.h"

#include "platform/QuitOnSignal.h"

#include <QCoreApplication>
#include <spdlog/fmt/fmt.h>

#include <cstdio>

namespace velmora {

void live(const Selection& selection)
{
    QuitOnSignal quitOnSignal;
    quitOnSignal.watch([] { QCoreApplication::quit(); });
    AppDelegate application;
    application.start();
    application.waitForBank();
    select(selection, application);

    const MidiInputs& inputs = *application.midiInputs();
    const AudioOutput* output = application.audioOutput();
    fmt::print("Playing in {} from {} on {}. Press Ctrl-C to stop.\n", selection.tuning,
               inputs.names().empty() ? "no MIDI input"
                                      : fmt::format("{}", fmt::join(inputs.names(), ", ")),
               output->driver() == "none" ? "no sound output" : output->driver());
    std::fflush(stdout);
    QCoreApplication::exec();
}

} // namespace velmora
