#pragma once

#include "app/InputQueue.h"
#include "app/midiRead.h"
#include "import/InstrumentDocument.h"
#include "import/InstrumentHost.h"
#include "platform/AudioOutput.h"
#include "platform/DisplayWake.h"
#include "platform/IntervalTimer.h"
#include "platform/MidiInputs.h"
#include "platform/OpenALDevice.h"
#include "sequencer/SequenceHost.h"
#include "tuning/TuningDocument.h"

#include <QObject>

#include <atomic>
#include <filesystem>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

/// The SoundFonts to try for the General MIDI synthesizer, the one that the user prefers first.
std::vector<std::filesystem::path> generalMidiBanks();

/// The application without its windows: the current instrument and temperament, the lists that they
/// are chosen from, the sound output, the MIDI inputs, and the way of a key from one to the other.
///
/// Keys, volumes and `midiInput` come on any thread; everything else is called on the main thread.
class AppDelegate : public QObject, public LiveInput, public SequenceHost, public InstrumentHost {
    Q_OBJECT

public:
    AppDelegate();
    ~AppDelegate() override;

    /// Starts live playing: opens the sound outputs, connects the MIDI inputs, makes the built-in
    /// tunings and the General MIDI player, starts the fade timer. What the machine does not have
    /// is logged and done without. Needs a QCoreApplication.
    void applicationDidFinishLaunching();

    /// Makes the tunings "Equal", which becomes the current one, and "Quartercomma Meantone".
    /// Comes before any instrument.
    void makeBuiltinTunings();

    /// Makes the General MIDI player on a synthesizer; it becomes the current instrument.
    void makeMIDIPlayer(std::unique_ptr<MusicDevice> synthesizer);

    /// Lists an instrument and makes it the current one. A document without one is left out.
    void addInstrument(std::unique_ptr<InstrumentDocument> document);

    /// Makes an instrument the current one and tunes it. It must live as long as the application.
    /// Keys that sound on the one before go on.
    void setInstrument(Instrument& instrument);

    /// Lists a tuning under its name, in place of one of that name.
    void putTuning(std::unique_ptr<TuningDocument> document);

    /// Makes the tuning of that name the current one and retunes the instrument, sounding keys too.
    /// False when there is none: the current one then stays.
    bool selectTuning(const std::string& name);

    /// The tick of the fade timer, 60 in a second.
    void loop();

    Instrument* getInstrument() override { return instrument_; }
    Temperament* getTemperament() override { return temperament_; }
    std::mutex& soundLock() override { return soundLock_; }

    /// Sounds a key at once, on the calling thread. Keys beyond 0…127 are ignored.
    void keyOn(int key, float velocity) override;
    void keyOff(int key) override;
    void setVolume(float volume, std::size_t slider) override;
    void midiInput() override;

    void startProgress(long steps) override;
    void updateProgress(unsigned steps, const std::string& text) override;
    bool isCancelled() const override { return isCancelled_; }

    /// Gives the import that is under way up, at its next step.
    void cancelImport() { isCancelled_ = true; }

    /// The synthesizer's sound output; null when there is none, or before launching.
    const AudioOutput* audioOutput() const { return output_.get(); }

    /// The MIDI inputs; null before launching.
    const MidiInputs* midiInputs() const { return inputs_.get(); }

signals:
    /// The held keys have changed. On the main thread, after the keys have sounded.
    void midiInputReceived();

    /// A MIDI controller has moved the slider of a stop. On the main thread.
    void volumeMoved(std::size_t slider, float volume);

    /// An import of that many steps begins.
    void progressStarted(long steps);

    /// So many more of its steps, at least one, are done; the text says what the last one was.
    void progressed(unsigned steps, const std::string& text);

private:
    void received(MidiPacket packet);
    void take(const InputEvent& event);

    /// Guards `instrument_` and `temperament_` and every call on them.
    std::mutex soundLock_;
    Instrument* instrument_ = nullptr;
    Temperament* temperament_ = nullptr;

    bool isCancelled_ = false;

    /// Before the instruments, which play through it: gone after them.
    std::unique_ptr<OpenALDevice> openAL_;
    std::vector<std::unique_ptr<InstrumentDocument>> instruments_;
    /// Every tuning ever listed: one whose name was taken over may still be the current one.
    std::vector<std::unique_ptr<TuningDocument>> tuningDocuments_;
    std::map<std::string, TuningDocument*> tunings_;

    InputQueue queue_;
    DisplayWake displayWake_;
    std::atomic<bool> userIsActive_{false};

    // Last, and so gone first: their threads call what stands above.
    std::unique_ptr<AudioOutput> output_;
    std::unique_ptr<MidiInputs> inputs_;
    std::unique_ptr<IntervalTimer> fadeTimer_;
};
