#pragma once

#include "app/InputQueue.h"
#include "app/InstrumentLoader.h"
#include "app/LiveDevices.h"
#include "app/MidiLearning.h"
#include "app/OrganConsole.h"
#include "app/Player.h"
#include "app/PlayingOptions.h"
#include "app/ReceivedTunings.h"
#include "app/Tunings.h"
#include "app/preferredOutput.h"
#include "audio/AudioEngine.h"
#include "audio/OutputKeeper.h"
#include "import/InstrumentDocument.h"
#include "import/InstrumentHost.h"
#include "midi/MidiInputs.h"
#include "midi/midiRead.h"
#include "platform/DisplayWake.h"
#include "platform/IntervalTimer.h"
#include "sound/MIDIInstrument.h"

#include <QObject>

#include <atomic>
#include <filesystem>
#include <future>
#include <memory>
#include <string>
#include <vector>

namespace velmora {

class Synthesizer;
class TuningCorrector;

/// The application without its windows: the lists of instruments and tunings, the devices, and the
/// player that they share.
///
/// The functions of `LiveInput` may be called on any thread, all others on the main thread.
class AppDelegate : public QObject, public LiveInput, public InstrumentHost {
    Q_OBJECT

public:
    AppDelegate();
    ~AppDelegate() override;

    /// Starts live playing: plays through `output`, connects the MIDI inputs, creates the built-in
    /// tunings and the General MIDI player, and starts the fade timer. Anything that the machine
    /// lacks is logged, and the rest works without it. Needs a QCoreApplication.
    void start(const OutputSettings& output = preferredOutput());

    /// Creates the General MIDI player on a synthesizer; it becomes the current instrument.
    void makeMIDIPlayer(std::unique_ptr<MusicDevice> synthesizer);

    /// Loads the preferred bank of the General MIDI player in the background; `bankLoaded` follows.
    void loadBank();

    /// Waits until the bank that is being loaded can be played.
    void waitForBank();

    /// The SoundFont of the General MIDI player; empty while there is none.
    const std::filesystem::path& bank() const { return bank_; }

    /// The mixture of everything that sounds live.
    AudioEngine& engine() { return engine_; }

    /// The clicks beside the pieces.
    Metronome& metronome() { return metronome_; }

    /// The current instrument and temperament, and the keys that sound.
    Player& player() { return player_; }

    /// How the MIDI devices are played.
    PlayingOptions& playing() { return playing_; }

    /// The console of the current instrument, if it is an organ.
    OrganConsole& organ() { return organ_; }

    /// What controls of the MIDI devices have learned.
    MidiLearning& learning() { return learning_; }

    /// Adds an instrument to the list and makes it the current one. Ignores a document without an
    /// instrument.
    void addInstrument(std::unique_ptr<InstrumentDocument> document);

    /// The listed instruments in the order in which they were added. A document without an
    /// instrument has been unloaded.
    const std::vector<std::unique_ptr<InstrumentDocument>>& instruments() const
    {
        return instruments_;
    }

    /// Makes a listed instrument the current one, loading it again if it was unloaded. Returns
    /// false if that fails or is cancelled; its document says why, and the current one stays.
    bool selectInstrument(std::size_t position);

    /// Puts an instrument that was read again in the place of a listed one, and makes it the
    /// current one. What sounds on the old one ends. Ignores a document without an instrument.
    void replaceInstrument(std::size_t position, std::unique_ptr<InstrumentDocument> document);

    /// Unloads a listed instrument that was read from a file and does not sound. If it is the
    /// current one, the first of the list takes its place. Returns false if nothing was unloaded.
    bool unloadInstrument(std::size_t position);

    /// Makes an instrument the current one, under a name for display, and tunes it. It must outlive
    /// this object, unless it is removed from the player.
    void setInstrument(Instrument& instrument, const std::string& name);

    /// True if a listed instrument is the current one.
    bool isCurrent(const InstrumentDocument& document) const;

    /// The name of the current instrument; empty if there is none.
    const std::string& instrumentName() const { return instrumentName_; }

    /// Selects a General MIDI program, 0…127, on the current instrument; `programSelected` follows.
    void setMIDIProgram(std::uint8_t program);

    /// Selects one of the programs of the current instrument by its position; `programSelected`
    /// follows.
    void selectProgram(std::size_t position);

    /// The program of the General MIDI player, 0…127.
    std::uint8_t midiProgram();

    /// What a listener would call the current sound: the name of its program, in the user's
    /// language if that is a General MIDI one, or that of the instrument if it has no programs.
    std::string soundName();

    /// Selects a General MIDI program as `setMIDIProgram` does; `programSelected` follows if the
    /// current instrument has programs. Any thread may call it.
    void receiveProgram(std::uint8_t program);

    /// Sets the volume of a stop of the current instrument to 1 if it is 0, otherwise to 0;
    /// `volumeMoved` follows. Any thread may call it.
    void toggleVolume(std::size_t stop);

    /// Sets the master volume, from 0 to 1, and remembers it; `masterVolumeMoved` follows. Any
    /// thread may call it.
    void moveMasterVolume(float volume);

    /// Passes an event to the main thread. Any thread may call it.
    void post(const InputEvent& event) { queue_.post(event); }

    /// Sets the volume of a stop of the current instrument, as its slider does.
    void setVolumeOfStop(std::size_t stop, float volume);

    /// Ends every sound at once and releases every key.
    void silenceAll();

    /// The tunings to choose from and the current one.
    Tunings& tunings() { return tunings_; }
    const Tunings& tunings() const { return tunings_; }

    void keyOn(int key, float velocity) override { player_.keyOn(key, velocity); }
    void keyOff(int key) override { player_.keyOff(key); }
    void setVolume(float volume, std::size_t slider) override;
    void midiInput() override { queue_.post({}); }

    void startProgress(long steps) override;
    void updateProgress(unsigned steps, const std::string& text) override;
    bool isCancelled() const override { return isCancelled_; }
    bool loadsInBackground() const override { return loadsInBackground_; }
    bool correctsTuning() const override { return playing_.correctsTuning(); }

    /// From now on, instruments can be played before all their stops are loaded.
    void loadInBackground() { loadsInBackground_ = true; }

    /// What loads the other stops.
    InstrumentLoader& loader() { return loader_; }

    /// Cancels the running import at its next step.
    void cancelImport() { isCancelled_ = true; }

    /// The sound output; null before `start`.
    OutputKeeper* output() { return output_.get(); }

    /// The MIDI inputs; null before `start`.
    const MidiInputs* midiInputs() const { return inputs_.get(); }

    /// Plays the tunings that MIDI devices send.
    ReceivedTunings& receivedTunings() { return receivedTunings_; }

    /// The MIDI devices and their settings.
    LiveDevices& midiDevices() { return devices_; }

    /// Emits `midiDevicesChanged` in the event loop. May be called on any thread.
    void announceMidiDevices();

    /// Keeps the display awake, because music is played. May be called on any thread.
    void noteActivity() { userIsActive_ = true; }

    /// True if the display is kept awake while music is played.
    bool keepsDisplayAwake() const { return displayWake_.isConnected(); }

signals:
    /// Another sound output plays, or another one is missing.
    void outputChanged();

    /// The held keys have changed. Emitted on the main thread, after the keys have sounded.
    void midiInputReceived();

    /// Loading has ended. `bank()` is unchanged if no bank could be loaded.
    void bankLoaded();

    /// A MIDI device was connected or has vanished.
    void midiDevicesChanged();

    /// The thread that loads a bank has finished, successfully or not.
    void loadingFinished();

    /// The channels of sequences play other programs from now on.
    void voicesUsed();

    /// The program at a position of the current instrument's list was selected.
    void programSelected(int position);

    /// A control that has learned `Play`, `Record`, `Stop` or `Silence` was used.
    void controlUsed(LearnedAction::Kind action);

    /// An instrument was listed, unloaded or loaded again.
    void instrumentsChanged();

    /// The current instrument, or the stops of the current instrument, have changed.
    void instrumentChanged();

    /// A MIDI controller has moved the slider of a stop. Emitted on the main thread.
    void volumeMoved(std::size_t slider, float volume);

    /// A control of a MIDI device has moved the master volume, whose preference has changed.
    void masterVolumeMoved();

    /// An import of `steps` steps begins.
    void progressStarted(long steps);

    /// Another `steps` steps, at least one, are done. `text` names the last one.
    void progressed(unsigned steps, const std::string& text);

private:
    void keepPlaying(const OutputSettings& output);
    void takeReading();
    void takeSynthesizer();
    void playThrough(std::unique_ptr<Synthesizer> synthesizer);
    void handle(const InputEvent& event);
    void announceProgram();
    void followOptions();

    std::string instrumentName_;
    bool isCancelled_ = false;
    bool loadsInBackground_ = false;

    AudioEngine engine_;
    Metronome metronome_;
    std::vector<std::unique_ptr<InstrumentDocument>> instruments_;
    MIDIInstrument* midiPlayer_ = nullptr; ///< The first of the instruments.
    std::filesystem::path bank_;

    PlayingOptions playing_;
    MidiLearning learning_;
    Player player_;
    Tunings tunings_{player_};
    InputQueue queue_;
    OrganConsole organ_{player_, [this] { queue_.post({.kind = InputEvent::Kind::Console}); }};
    LiveDevices devices_{*this};
    ReceivedTunings receivedTunings_{
        tunings_, [this] { queue_.post({.kind = InputEvent::Kind::Tuning}); },
        [this](std::size_t device) { return devices_.getName(device); }};
    DisplayWake displayWake_;
    std::atomic<bool> userIsActive_{false};

    // Declared last: their threads use the members above.
    std::unique_ptr<OutputKeeper> output_;
    std::unique_ptr<MidiInputs> inputs_;
    InstrumentLoader loader_{player_};
    std::unique_ptr<IntervalTimer> fadeTimer_;
    std::future<std::unique_ptr<Synthesizer>> loading_;
    std::unique_ptr<TuningCorrector> tuningCorrector_;
    bool loadsAgain_ = false; ///< True if the preference changed while a bank was loading.
};

} // namespace velmora
