#pragma once

#include "app/Player.h"
#include "audio/AudioEngine.h"
#include "audio/Synthesizer.h"
#include "import/InstrumentDocument.h"
#include "sound/ConsoleState.h"
#include "tuning/Temperament.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace velmora {

class AppDelegate;

/// The instrument and temperament of the application at one moment, to be created again elsewhere.
struct SoundSettings {
    std::unique_ptr<Temperament> temperament;
    std::filesystem::path instrument; ///< A file; empty for the General MIDI player.
    InstrumentFormat format = InstrumentFormat::SoundFont; ///< The format of that file.
    ImportOptions options;                                 ///< How it was read.
    std::vector<float> gains;                              ///< The gain of each stop.
    std::optional<ConsoleState> console;                   ///< In place of the gains for an organ.
    Player::Divisions divisions;
    std::size_t program = 0;                  ///< The position of the program.
    Reading reading = Reading::Musical;       ///< Of temperaments by the General MIDI player.
    bool correctsTuning = false;              ///< As `PlayingOptions` has it.
    Glide glide;                              ///< As `PlayingOptions` has it.
    std::vector<std::filesystem::path> banks; ///< The SoundFonts for the General MIDI player.
};

/// Returns the gain of each stop, 0…1, as `setVolume` takes it. For a sampled instrument,
/// `getVolume` returns twice that.
std::vector<float> gainsOf(const Instrument& instrument);

/// Returns what is set at the console of an instrument; nothing if it has none.
std::optional<ConsoleState> consoleStateOf(const Instrument& instrument);

/// Returns the current settings of an application that has an instrument.
SoundSettings currentSettings(AppDelegate& application);

/// Creates a synthesizer without an output. Throws std::runtime_error if no bank can be loaded.
std::unique_ptr<Synthesizer>
makeOfflineSynthesizer(double rate, const std::vector<std::filesystem::path>& banks);

/// A player with an instrument and a temperament of its own, which shares nothing with live
/// playing. Must be created, played and destroyed on one thread.
class OfflineSound {
public:
    /// Loads the instrument. Throws std::runtime_error if that fails: with a sentence, or with an
    /// empty message if the host cancels the import.
    OfflineSound(const SoundSettings& settings, double rate, InstrumentHost& host);

    /// The source of the player's sound.
    AudioSource& source() { return engine_; }

    Player& player() { return player_; }

    /// Brings into tune what the instrument and the voices play, if the settings want that. Call
    /// this when the player knows the voices.
    void correctTuning();

private:
    std::unique_ptr<Temperament> temperament_;
    AudioEngine engine_;
    std::unique_ptr<InstrumentDocument> document_;
    std::filesystem::path bank_; ///< To be corrected; empty if it shall not be.
    Player player_;
};

} // namespace velmora
