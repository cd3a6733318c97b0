#pragma once

#include "audio/Program.h"

#include <fluidsynth.h>

#include <filesystem>
#include <memory>
#include <vector>

namespace velmora {

/// A SoundFont in memory, to be played by the lanes of a synthesizer, which it must outlive. Banks
/// of the same file share their samples.
class SoundFontBank {
public:
    /// Loads a file. Throws std::runtime_error if FluidSynth cannot read it.
    explicit SoundFontBank(const std::filesystem::path& path);

    const std::filesystem::path& path() const { return path_; }

    /// FluidSynth's handle of the bank.
    fluid_sfont_t* handle() const { return handle_; }

    /// The presets by bank and number. Bank 128 holds the drum kits. Names are UTF-8.
    std::vector<Program> programs() const;

private:
    template <class T> using Owned = std::unique_ptr<T, void (*)(T*)>;

    std::filesystem::path path_;
    Owned<fluid_settings_t> settings_;
    Owned<fluid_synth_t> owner_; ///< Plays nothing; only a synthesizer can load a bank.
    fluid_sfont_t* handle_ = nullptr;
};

} // namespace velmora
