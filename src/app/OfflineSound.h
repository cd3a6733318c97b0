#pragma once

#include "audio/OpenALLoopback.h"
#include "audio/Synthesizer.h"
#include "import/InstrumentDocument.h"
#include "sequencer/SequenceHost.h"
#include "tuning/Temperament.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace velmora {

class AppDelegate;

/// What the application plays with at one moment, for it to be made once more elsewhere.
struct SoundSettings {
    std::unique_ptr<Temperament> temperament;
    std::filesystem::path instrument; ///< A file; empty for the General MIDI player.
    InstrumentFormat format = InstrumentFormat::SoundFont; ///< The format of that file.
    std::vector<float> gains;                              ///< Of the stops.
    std::uint8_t program = 0;                              ///< Of the General MIDI player.
    std::vector<std::filesystem::path> banks;
};

/// Those of an application that has an instrument.
SoundSettings currentSettings(AppDelegate& application);

/// A synthesizer that nobody hears. Throws std::runtime_error when none of the banks can be loaded.
std::unique_ptr<Synthesizer>
makeOfflineSynthesizer(double rate, const std::vector<std::filesystem::path>& banks);

/// An instrument and a temperament of its own, with nothing shared with those that sound live. Is
/// made, played and ended on one thread.
class OfflineSound : public SequenceHost {
public:
    /// Loads the instrument. Throws std::runtime_error with a sentence when that fails, with none
    /// when the host of the import cancels it.
    OfflineSound(SoundSettings settings, double rate, InstrumentHost& host);

    /// Gives the sound out.
    AudioSource& source() { return *source_; }

    Instrument* getInstrument() override { return document_->instrument(); }
    Temperament* getTemperament() override { return temperament_.get(); }
    std::mutex& soundLock() override { return soundLock_; }

private:
    std::mutex soundLock_;
    std::unique_ptr<Temperament> temperament_;
    std::optional<OpenALLoopback> loopback_; ///< Before the instrument, and so gone after it.
    std::unique_ptr<InstrumentDocument> document_;
    AudioSource* source_ = nullptr;
};

} // namespace velmora
