// Measures the timing of a sequence that plays while its window and the keyboard repaint, through
// the General MIDI synthesizer on a JACK server with the dummy driver: a minute of notes at
// irregular times, and then a loop of one second while the main thread is busy. Needs a display.

#include "app/generalMidiBanks.h"
#include "audio/Synthesizer.h"
#include "base/Clock.h"
#include "desktop/shell/Desktop.h"
#include "desktop/shell/SequencePage.h"
#include "desktop/widgets/graphics.h"
#include "support/JackServer.h"

#include <QApplication>
#include <QOpenGLWidget>
#include <QTimer>
#include <spdlog/fmt/fmt.h>

#include <algorithm>
#include <chrono>
#include <random>
#include <thread>
#include <utility>

using namespace velmora;

namespace {

constexpr std::size_t kNotes = 900;
constexpr double kStepsPerSecond = 16.0; ///< At the tempo of a new piece.
constexpr int kPasses = 20;
constexpr double kMilliseconds = 1e3;

/// Records for when each note is meant, because its sound is placed by that, and how much later it
/// is played.
class TimedInstrument : public Instrument {
public:
    explicit TimedInstrument(Instrument& instrument) : instrument_(instrument)
    {
        times.reserve(2 * kNotes);
        delays.reserve(2 * kNotes);
    }

    void play(int key, float velocity) override
    {
        const double now = getTime();
        times.push_back(due_ > 0.0 ? due_ : now);
        delays.push_back(now - times.back());
        instrument_.play(key, velocity);
    }
    void stop(int key) override { instrument_.stop(key); }
    void setDue(double time) override
    {
        due_ = time;
        instrument_.setDue(time);
    }
    void silence() override { instrument_.silence(); }
    float getVolume(std::size_t stop) const override { return instrument_.getVolume(stop); }
    std::size_t numStops() const override { return instrument_.numStops(); }
    void setVolume(std::size_t stop, float volume) override { instrument_.setVolume(stop, volume); }
    void tune(const Temperament& temperament, int lo, int hi) override
    {
        instrument_.tune(temperament, lo, hi);
    }
    void fade(double factor) override { instrument_.fade(factor); }

    std::vector<double> times, delays;

private:
    Instrument& instrument_;
    double due_ = 0.0;
};

/// Prints errors in seconds as milliseconds.
void print(const char* title, std::vector<double> errors)
{
    std::sort(errors.begin(), errors.end());
    const auto at = [&](double part) {
        return kMilliseconds *
               errors[static_cast<std::size_t>(part * static_cast<double>(errors.size() - 1))];
    };
    fmt::print("{}, in milliseconds: minimum {:.3f}, median {:.3f}, p99 {:.3f}, maximum {:.3f}\n",
               title, at(0.0), at(0.5), at(0.99), at(1.0));
}

/// Returns the steps at which the notes start, a sixteenth of a second apart on average.
std::vector<double> fillAtRandom(SequenceDocument& document)
{
    std::mt19937 random(1);
    std::uniform_real_distribution<double> gap(0.2, 1.8);
    std::vector<double> starts;
    for (double start = 4.0; starts.size() < kNotes; start += gap(random)) {
        Note note{.start = start, .length = 2.0 * gap(random), .velocity = 0.5F};
        note.key = static_cast<std::uint32_t>(36 + random() % 48);
        document.edit()->addNote(note);
        starts.push_back(start);
    }
    document.updateExtent();
    return starts;
}

} // namespace

int main(int argc, char** argv)
{
    const JackServer server;
    requestOpenGL();
    const QApplication qt(argc, argv);
    Desktop desktop;
    AppDelegate& application = desktop.application();
    application.tunings().addBuiltins();
    auto output = AudioOutput::open({});
    auto synthesizer = std::make_unique<Synthesizer>(output->rate(), generalMidiBanks());
    application.makeMIDIPlayer(std::move(synthesizer));
    application.engine().setRate(output->rate());
    output->start(application.engine());
    TimedInstrument instrument(*application.instruments().front()->instrument());
    application.setInstrument(instrument, "timed");
    application.tunings().select("Dynamic");

    SequencePage* window = nullptr;
    QObject::connect(&desktop.pages(), &SequencePages::opened, &qt,
                     [&](SequencePage& opened) { window = &opened; });
    desktop.pages().create();
    SequenceDocument& document = window->document();
    const std::vector<double> starts = fillAtRandom(document);
    std::size_t frames = 0;
    double started = 0.0;
    QObject::connect(window->findChild<QOpenGLWidget*>(), &QOpenGLWidget::frameSwapped, &qt,
                     [&] { ++frames; });
    Transport& transport = document.transport();
    QObject::connect(
        &transport, &Transport::modeChanged, &qt,
        [&] {
            if (transport.mode() == Transport::Mode::Stopped)
                QApplication::exit();
        },
        Qt::QueuedConnection);
    const auto play = [&] {
        frames = 0;
        started = getTime();
        transport.play();
    };
    QTimer::singleShot(1000, &qt, play);
    QApplication::exec();
    const double seconds = getTime() - started;
    std::vector<double> late;
    for (std::size_t i = 0; i < std::min(starts.size(), instrument.times.size()); ++i)
        late.push_back(instrument.times[i] - started - starts[i] / kStepsPerSecond);
    fmt::print("{} of {} notes in {:.0f} s, {:.1f} frames per second\n", late.size(), starts.size(),
               seconds, static_cast<double>(frames) / seconds);
    print("notes late", std::move(late));
    print("played after their time", instrument.delays);

    {
        const auto edit = document.edit();
        edit->select();
        edit->erase();
        edit->addNote({.start = 0.0, .length = 4.0, .velocity = 0.5F, .key = 60});
    }
    instrument.times.clear();
    transport.selectInterval(0.0, kStepsPerSecond);
    transport.setPosition(0.0);
    transport.setLoop(true);
    QApplication::processEvents(); // what the windows have to do for all that
    QTimer busy;
    QObject::connect(&busy, &QTimer::timeout, &qt,
                     [] { std::this_thread::sleep_for(std::chrono::milliseconds(100)); });
    busy.start(20);
    play();
    QTimer::singleShot(1000 * kPasses, &qt, [&] { transport.play(); });
    QApplication::exec();
    std::vector<double> longer;
    for (std::size_t i = 1; i < instrument.times.size(); ++i)
        longer.push_back(instrument.times[i] - instrument.times[i - 1] - 1.0);
    fmt::print("{} passes of a loop of one second\n", longer.size());
    print("passes longer", std::move(longer));
    output.reset();
    application.setInstrument(*application.instruments().front()->instrument(), "");
}
