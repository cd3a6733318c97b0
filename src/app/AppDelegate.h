#pragma once

#include "app/InputQueue.h"
#include "audio/AudioOutput.h"
#include "audio/OpenALDevice.h"
#include "import/InstrumentDocument.h"
#include "import/InstrumentHost.h"
#include "midi/MidiInputs.h"
#include "midi/midiRead.h"
#include "platform/DisplayWake.h"
#include "platform/IntervalTimer.h"
#include "sequencer/SequenceHost.h"
#include "sound/MIDIInstrument.h"
#include "tuning/TuningDocument.h"

#include <QObject>

#include <atomic>
#include <filesystem>
#include <future>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace velmora {

class Synthesizer;

/// The SoundFonts to try for the General MIDI synthesizer, the one that the user prefers first.
std::vector<std::filesystem::path> generalMidiBanks();

/// The application without its windows: the current instrument and temperament, the lists that they
/// are chosen from, the sound output, the MIDI inputs, and the way of a key from one to the other.
///
/// Keys, volumes, `midiInput` and `soundLock` come on any thread, and under that lock
/// `getInstrument` and `getTemperament`; everything else is called on the main thread.
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

    /// Loads the bank of the General MIDI player anew, in the background, as the preferences name
    /// it: `bankLoaded` tells when it sounds.
    void loadBank();

    /// Waits until the bank sounds that is being loaded.
    void waitForBank();

    /// The SoundFont of the General MIDI player; empty while there is none.
    const std::filesystem::path& bank() const { return bank_; }

    /// Lists an instrument and makes it the current one. A document without one is left out.
    void addInstrument(std::unique_ptr<InstrumentDocument> document);

    /// The listed instruments, in the order in which they came. One without an instrument has been
    /// unloaded.
    const std::vector<std::unique_ptr<InstrumentDocument>>& instruments() const
    {
        return instruments_;
    }

    /// Makes a listed instrument the current one, reading it anew where it was unloaded. False when
    /// that fails or is cancelled, as its document tells: the current one then stays.
    bool selectInstrument(std::size_t position);

    /// Unloads a listed instrument that was read from a file and does not sound; where it is the
    /// current one, the first of the list takes its place. False when nothing was unloaded.
    bool unloadInstrument(std::size_t position);

    /// Makes an instrument the current one, under a name for display, and tunes it. It must live as
    /// long as it is the current one. Keys that sound on the one before go on, and die away where
    /// they were released.
    void setInstrument(Instrument& instrument, const std::string& name);

    /// The name of the current instrument; empty when there is none.
    const std::string& instrumentName() const { return instrumentName_; }

    /// Selects a General MIDI program, 0…127, on the current instrument.
    void setMIDIProgram(std::uint8_t program);

    /// The program of the General MIDI player, 0…127.
    std::uint8_t midiProgram() const { return midiPlayer_->program(); }

    /// Sets the volume of a stop of the current instrument, as its slider does.
    void setVolumeOfStop(std::size_t stop, float volume);

    /// Ends every sound at once and lets go of every key.
    void silenceAll();

    /// Lists a tuning under its name, in place of one of that name.
    void putTuning(std::unique_ptr<TuningDocument> document);

    /// The name under which the current tuning was selected.
    const std::string& tuningName() const { return tuningName_; }

    /// The names to choose a tuning by: once for each tuning that was listed, in the order in which
    /// they were, and "Dynamic".
    std::vector<std::string> tuningNames() const;

    /// Makes the tuning of that name the current one and retunes the instrument, sounding keys too.
    /// "Dynamic" is made and listed when it is first selected. False when there is none of that
    /// name: the current one then stays.
    bool selectTuning(const std::string& name);

    /// The tick of the fade timer, 60 in a second.
    void loop();

    Instrument* getInstrument() override { return instrument_; }
    Temperament* getTemperament() override { return temperament_; }
    std::mutex& soundLock() override { return soundLock_; }

    /// Sounds a key at once, on the calling thread. Keys beyond 0…127 are ignored, and velocities
    /// beyond 0…1 become the nearest of them.
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

    /// Whether there is an output for sampled instruments.
    bool canPlaySamples() const { return openAL_ != nullptr; }

    /// Whether the display is kept awake while music is played.
    bool keepsDisplayAwake() const { return displayWake_.isConnected(); }

signals:
    /// The held keys have changed. On the main thread, after the keys have sounded.
    void midiInputReceived();

    /// Another bank sounds, or none where none could be loaded; the one before where no synthesizer
    /// could be made.
    void bankLoaded();

    /// The thread that loads a bank has done so, or failed.
    void synthesizerMade();

    /// An instrument was listed, unloaded or read anew.
    void instrumentsChanged();

    /// Another instrument, or the same one with other stops, is the current one.
    void instrumentChanged();

    /// A tuning was listed.
    void tuningsChanged();

    /// Another tuning is the current one.
    void tuningChanged();

    /// A MIDI controller has moved the slider of a stop. On the main thread.
    void volumeMoved(std::size_t slider, float volume);

    /// An import of that many steps begins.
    void progressStarted(long steps);

    /// So many more of its steps, at least one, are done; the text says what the last one was.
    void progressed(unsigned steps, const std::string& text);

private:
    void received(MidiPacket packet);
    void takeSynthesizer();
    void playThrough(std::unique_ptr<Synthesizer> synthesizer);
    void take(const InputEvent& event);

    /// Guards `instrument_` and `temperament_` and every call on them.
    std::mutex soundLock_;
    Instrument* instrument_ = nullptr;
    Temperament* temperament_ = nullptr;

    std::string instrumentName_, tuningName_;
    bool isCancelled_ = false;

    /// Before the instruments, which play through it: gone after them.
    std::unique_ptr<OpenALDevice> openAL_;
    std::vector<std::unique_ptr<InstrumentDocument>> instruments_;
    /// Every tuning ever listed: one whose name was taken over may still be the current one.
    std::vector<std::unique_ptr<TuningDocument>> tuningDocuments_;
    std::map<std::string, TuningDocument*> tunings_;
    MIDIInstrument* midiPlayer_ = nullptr; ///< In the first of the instruments.
    std::filesystem::path bank_;

    InputQueue queue_;
    DisplayWake displayWake_;
    std::atomic<bool> userIsActive_{false};

    // Last, and so gone first: their threads call what stands above.
    std::unique_ptr<AudioOutput> output_;
    std::unique_ptr<MidiInputs> inputs_;
    std::unique_ptr<IntervalTimer> fadeTimer_;
    std::future<std::unique_ptr<Synthesizer>> loading_;
    bool loadsAgain_ = false; ///< The preference has changed meanwhile.
};

} // namespace velmora
