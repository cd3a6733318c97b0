// Does everything at once and at random for a given time: plays keys and controllers from a device,
// renders on an audio thread, plays, records and edits sequences, and changes instruments and
// tunings. After each round, all keys are released and all documents closed. Then nothing may
// sound, and the memory in use must not have grown.
//
//     test_soak [SECONDS [SEED]]

#include "soak/Players.h"

#include "app/AudioExport.h"
#include "base/Log.h"
#include "sequencer/SequenceFile.h"
#include "sequencer/fitToGrid.h"
#include "sound/keys.h"
#include "support/Bank.h"
#include "support/OrganFolder.h"
#include "support/TestHome.h"

#include <QCoreApplication>
#include <malloc.h>
#include <spdlog/fmt/fmt.h>

#include <deque>
#include <functional>
#include <stdexcept>

using namespace velmora;

namespace {

constexpr std::size_t kTicksPerFade = 17;
constexpr std::size_t kStepsPerRound = 1500;
constexpr std::size_t kMostNotes = 500;
constexpr std::ptrdiff_t kMostGrowth = 1 << 20;

void require(bool condition, const std::string& message)
{
    if (!condition)
        throw std::runtime_error(message);
}

/// Returns the number of bytes that are allocated at the moment.
#ifdef __SANITIZE_ADDRESS__
// AddressSanitizer delays freeing memory, and reports leaks itself.
constexpr std::size_t kWarmUpRounds = 0;
std::size_t memoryInUse()
{
    return 0;
}
#else
constexpr std::size_t kWarmUpRounds = 8;
std::size_t memoryInUse()
{
    const auto heap = mallinfo2();
    return heap.uordblks + heap.hblkhd;
}
#endif

class Soak : public QObject {
public:
    explicit Soak(unsigned seed) : random_(seed)
    {
        app_.tunings().addBuiltins();
        app_.makeMIDIPlayer(std::make_unique<Synthesizer>(kRate, std::vector{kBank}));
        audio_ = std::make_unique<AudioThread>(app_.engine());
        folder_.writeSine("a.wav", 220.0);
        folder_.writeSine("b.wav", 523.25);
        addOrgan();
        addOrgan();
        for (int i = 0; i < 4; ++i)
            app_.tunings().put(readTuning());
        app_.tunings().select("Dynamic");
        connect(&app_, &AppDelegate::midiInputReceived, this, [this] {
            if (!sequences_.empty())
                sequences_.front()->document.practice().midiInput();
        });
        device_ = std::make_unique<DeviceThread>(app_, seed);
    }

    /// Does a round of random actions. If the instrument does not change, each key is released on
    /// the instrument that it was pressed on.
    void round(bool changesInstruments)
    {
        changesInstruments_ = changesInstruments;
        app_.selectInstrument(pick(app_.instruments().size()));
        device_->setPlaying(true);
        exported_ = false;
        for (step = 0; step < kStepsPerRound; ++step)
            act();
    }

    /// Ends everything that a round has started. Returns the memory then in use.
    std::size_t finish()
    {
        device_->setPlaying(false);
        pressMouse(-1);
        sequences_.clear();
        QCoreApplication::processEvents();
        for (std::size_t key = 0; key < kKeys; ++key)
            require(app_.player().liveKeys().state(key) == 0, "a key is still held");
        fade();
        require(audio_->fallsSilent(), "an instrument still sounds");
        app_.tunings().select("Equal");
        for (std::size_t i = 1; i < app_.instruments().size(); ++i)
            require(app_.instruments()[i]->instrument() == nullptr || app_.unloadInstrument(i),
                    "an organ cannot be unloaded");
        app_.selectInstrument(0);
        QCoreApplication::processEvents();
        return memoryInUse();
    }

    std::size_t step = 0; ///< The current step of the round.

private:
    std::size_t pick(std::size_t count) { return random_() % count; }
    bool chance(std::size_t oneIn) { return pick(oneIn) == 0; }

    void act()
    {
        while (sequences_.size() < 4)
            sequences_.push_back(makeSequence());
        OpenSequence& open = *sequences_[pick(sequences_.size())];
        if (open.document.sequence().notes().size() > kMostNotes) {
            open.editor.selectAll();
            open.editor.deleteSelection();
        }
        if (const std::size_t kind = pick(16); kind < 5)
            drag(open);
        else if (kind < 9)
            pressKey(open);
        else if (kind < 14)
            command(open);
        else
            changeSound();
        advance(pick(96));
        QCoreApplication::processEvents();
        std::this_thread::sleep_for(std::chrono::microseconds(500));
    }

    std::unique_ptr<OpenSequence> makeSequence()
    {
        return std::make_unique<OpenSequence>(app_.player(), chance(2));
    }

    void advance(std::size_t ticks)
    {
        for (; ticks > 0; --ticks) {
            for (const auto& open : sequences_)
                open->tick();
            if (++ticks_ % kTicksPerFade == 0)
                app_.player().fade();
        }
    }

    /// Fades for five seconds.
    void fade()
    {
        for (int i = 0; i < 300; ++i)
            app_.player().fade();
    }

    /// Returns a random place, usually on a note.
    RollPoint somewhere(const OpenSequence& open)
    {
        const auto& notes = open.document.sequence().notes();
        if (notes.empty() || chance(4))
            return {static_cast<double>(36 + pick(60)), static_cast<double>(pick(640)) / 10.0};
        const Note& note = notes[pick(notes.size())];
        return {static_cast<double>(note.key),
                note.start + note.length * static_cast<double>(pick(11)) / 10.0};
    }

    Qt::KeyboardModifiers modifiers()
    {
        constexpr std::array kAll = {Qt::NoModifier, Qt::NoModifier, Qt::ShiftModifier,
                                     Qt::ControlModifier};
        return kAll[pick(kAll.size())];
    }

    void drag(OpenSequence& open)
    {
        const auto held = modifiers();
        if (chance(3))
            open.editor.rightMouseDown(somewhere(open));
        else
            open.editor.mouseDown(somewhere(open), held);
        for (std::size_t i = pick(4); i > 0; --i) {
            open.editor.mouseDragged(somewhere(open));
            if (chance(20))
                open.document.undoStack().undo(); // may remove the note being drawn
            advance(pick(8));
        }
        open.editor.mouseUp(somewhere(open), held);
    }

    void pressKey(OpenSequence& open)
    {
        static const std::string kTyped = "1234567890";
        constexpr std::array kOthers = {Qt::Key_Space, Qt::Key_Return, Qt::Key_Up,
                                        Qt::Key_Down,  Qt::Key_Escape, Qt::Key_Delete};
        const int key =
            chance(2) ? int{kTyped[pick(kTyped.size())]} : int{kOthers[pick(kOthers.size())]};
        open.editor.keyDown(QKeyEvent(QEvent::KeyPress, key, modifiers()));
        advance(pick(64));
    }

    void command(OpenSequence& open)
    {
        SequenceDocument& document = open.document;
        QUndoStack& stack = document.undoStack();
        const double place = static_cast<double>(pick(64));
        const std::array<std::function<void()>, 16> commands{
            [&] { document.transport().setLoop(chance(2)); },
            [&] { document.recorder().setSnapToGrid(chance(2)); },
            [&] { document.transport().setSpeed(static_cast<double>(40 + pick(400)) / 120.0); },
            [&] {
                document.transport().selectInterval(place, place + static_cast<double>(pick(16)));
            },
            [&] { document.recorder().waitAt(place); },
            [&] { document.recorder().setPunches(chance(2)); },
            [&] { document.chooseTake(pick(3)); },
            [&] { movePedal(document, place); },
            [&] { fit(document); },
            [&] { stack.setIndex(stack.index() - static_cast<int>(pick(12))); },
            [&] { stack.setIndex(stack.index() + static_cast<int>(pick(12))); },
            [&] { clipboard_ = chance(2) ? open.editor.copy() : open.editor.cut(); },
            [&] { open.editor.paste(clipboard_); },
            [&] { pressMouse(static_cast<int>(pick(kKeys))); },
            [&] { chance(4) ? saveAndRead(open) : document.transport().play(); },
            [&] { chance(8) ? exportAudio(open) : document.recorder().record(); }};
        commands[pick(commands.size())]();
    }

    /// Holds a pedal for a while, or leaves out moves of controllers.
    void movePedal(SequenceDocument& document, double place)
    {
        constexpr std::array<std::uint8_t, 4> kNumbers = {midi::kSustain, midi::kSostenuto,
                                                          midi::kSoft, midi::kExpression};
        const auto channel = static_cast<std::uint8_t>(pick(midi::kChannels));
        const std::uint8_t number = kNumbers[pick(kNumbers.size())];
        const double end = place + static_cast<double>(pick(16));
        const Controllers& controllers = document.controllers();
        document.setControllers(chance(3)
                                    ? thinned(controllers, static_cast<int>(pick(32)))
                                    : withRecorded(controllers, {{place, channel, number, 127},
                                                                 {end, channel, number, 0}}),
                                {});
    }

    void fit(SequenceDocument& document)
    {
        if (const auto beats = findBeats(document.sequence().notes(), document.time()))
            fitToGrid(document, *beats, {});
    }

    /// Releases the on-screen key that is held and presses another; -1 presses none.
    void pressMouse(int key)
    {
        app_.keyOff(std::exchange(mouse_, key));
        app_.keyOn(key, 0.7F);
        app_.midiInput();
    }

    /// Saves a sequence and replaces it with a new document that reads the file.
    void saveAndRead(OpenSequence& open)
    {
        const auto path = folder_.path() / "saved.mid";
        constexpr auto kSaveAs = SequenceDocument::SaveOperation::SaveAs;
        for (const auto format : {SequenceFormat::IMelody, SequenceFormat::MidiFile})
            require(open.document.save(path, format, kSaveAs), open.document.errorString());
        auto read = makeSequence();
        read->document.read(path);
        require(read->document.errorString().empty(), read->document.errorString());
        const auto old = std::ranges::find(sequences_, &open, &std::unique_ptr<OpenSequence>::get);
        *old = std::move(read);
    }

    /// Exports a sequence, but only once per round because it takes a while.
    void exportAudio(OpenSequence& open)
    {
        if (std::exchange(exported_, true) || open.document.transport().extent() > 200.0)
            return;
        std::optional<std::string> reason;
        AudioExport job;
        connect(&job, &AudioExport::finished, this,
                [&](bool /*isWritten*/, const QString& error) { reason = error.toStdString(); });
        job.start(currentSettings(app_), open.document.snapshot(), 240.0,
                  {{folder_.path() / "export.wav"}});
        for (std::size_t left = chance(2) ? 100 : SIZE_MAX; !reason; --left) {
            if (left == 0)
                job.cancel();
            advance(8);
            QCoreApplication::processEvents();
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        }
        require(reason->empty(), *reason);
    }

    void changeSound()
    {
        const std::size_t instrument = pick(app_.instruments().size());
        const auto names = app_.tunings().names();
        const std::array<std::function<void()>, 7> changes{
            [&] { app_.setMIDIProgram(static_cast<std::uint8_t>(pick(128))); },
            [&] { app_.setVolumeOfStop(pick(3), static_cast<float>(pick(11)) / 10.0F); },
            [&] { readTuning(); }, // not listed, because listed tunings are never freed
            [&] { app_.tunings().select(names[pick(names.size())]); },
            [&] { app_.tunings().select(names[pick(names.size())]); },
            [&] { require(app_.selectInstrument(instrument), "an organ cannot be reloaded"); },
            [&] {
                if (chance(4))
                    app_.silenceAll();
                app_.unloadInstrument(instrument);
            }};
        changes[pick(changesInstruments_ ? 7 : 5)]();
    }

    std::unique_ptr<TuningDocument> readTuning()
    {
        constexpr std::array kFiles = {"kirnberger-3.scl", "pythagorean.scl", "werckmeister-3.scl"};
        const auto path = std::filesystem::path(VELMORA_EXAMPLES) / kFiles[pick(kFiles.size())];
        auto tuning = std::make_unique<TuningDocument>();
        require(tuning->read(path, TuningFormat::Scale), tuning->errorString());
        return tuning;
    }

    void addOrgan()
    {
        const auto path = folder_.write(
            "test.organ", "[Organ]\nChurchName=Test\n[Manual001]\n"
                          "FirstAccessibleKeyMIDINoteNumber=48\n[Stop001]\nName=Flute\n"
                          "Pipe001=a.wav\nPipe013=b.wav\n[Stop002]\nPipe007=b.wav\n");
        auto document = std::make_unique<InstrumentDocument>();
        require(document->read(path, InstrumentFormat::Hauptwerk1, {Reading::Plain}, app_),
                document->errorString());
        app_.addInstrument(std::move(document));
    }

    std::mt19937 random_;
    OrganFolder folder_;
    AppDelegate app_;
    std::unique_ptr<AudioThread> audio_;
    std::unique_ptr<DeviceThread> device_;
    std::deque<std::unique_ptr<OpenSequence>> sequences_;
    std::vector<Note> clipboard_;
    int mouse_ = -1;
    std::size_t ticks_ = 0;
    bool changesInstruments_ = false, exported_ = false;
};

} // namespace

int main(int argc, char** argv)
{
    const TestHome home;
    setLogLevel(spdlog::level::err);
    const QCoreApplication application(argc, argv);
    const double seconds = argc > 1 ? std::stod(argv[1]) : 120.0;
    const unsigned seed = argc > 2 ? static_cast<unsigned>(std::stoul(argv[2])) : 1;

    Soak soak(seed);
    const double started = getTime();
    std::size_t rounds = 0, warm = 0;
    std::ptrdiff_t growth = 0;
    try {
        for (; getTime() - started < seconds || rounds <= kWarmUpRounds; ++rounds) {
            soak.round(rounds % 2 == 1);
            const std::size_t memory = soak.finish();
            if (rounds < kWarmUpRounds)
                warm = std::max(warm, memory);
            growth = static_cast<std::ptrdiff_t>(memory - warm);
            require(growth <= kMostGrowth, fmt::format("memory use has grown by {} bytes", growth));
        }
    } catch (const std::exception& error) {
        fmt::print("FAILED in round {}, step {}, seed {}: {}\n", rounds, soak.step, seed,
                   error.what());
        return 1;
    }
    fmt::print("{:.0f} s, {} rounds of {} steps, seed {}: {} bytes after the warm-up, {:+} since\n",
               getTime() - started, rounds, kStepsPerRound, seed, warm, growth);
}
