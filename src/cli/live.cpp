#include "cli/commands.h"

#include <QCoreApplication>
#include <QSocketNotifier>
#include <spdlog/fmt/fmt.h>

#include <csignal>
#include <cstdio>
#include <sys/signalfd.h>
#include <unistd.h>

namespace {

/// Ends the event loop at SIGINT and SIGTERM. To be made before any other thread is, since threads
/// inherit that these signals wait to be read here.
class QuitOnSignal {
public:
    QuitOnSignal()
    {
        sigset_t ends;
        sigemptyset(&ends);
        sigaddset(&ends, SIGINT);
        sigaddset(&ends, SIGTERM);
        pthread_sigmask(SIG_BLOCK, &ends, nullptr);
        descriptor_ = signalfd(-1, &ends, SFD_CLOEXEC);
        notifier_ = std::make_unique<QSocketNotifier>(descriptor_, QSocketNotifier::Read);
        QObject::connect(notifier_.get(), &QSocketNotifier::activated,
                         [] { QCoreApplication::quit(); });
    }

    ~QuitOnSignal()
    {
        notifier_.reset();
        close(descriptor_);
    }

    QuitOnSignal(const QuitOnSignal&) = delete;
    QuitOnSignal& operator=(const QuitOnSignal&) = delete;

private:
    int descriptor_;
    std::unique_ptr<QSocketNotifier> notifier_;
};

} // namespace

void live(const Selection& selection)
{
    const QuitOnSignal quitOnSignal;
    AppDelegate application;
    application.applicationDidFinishLaunching();
    application.waitForBank();
    select(selection, application);

    const MidiInputs& inputs = *application.midiInputs();
    const AudioOutput* output = application.audioOutput();
    fmt::print("Playing in {} from {} on {}. Ctrl-C ends it.\n", selection.tuning,
               inputs.names().empty() ? "no MIDI input"
                                      : fmt::format("{}", fmt::join(inputs.names(), ", ")),
               output == nullptr ? "no sound output" : output->driver());
    std::fflush(stdout);
    QCoreApplication::exec();
}
