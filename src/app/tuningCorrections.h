#pragma once

#include "audio/MusicDevice.h"

#include <cstddef>
#include <filesystem>
#include <functional>
#include <optional>
#include <vector>

namespace velmora {

class AppDelegate;
class Instrument;

/// A program of a SoundFont.
struct BankProgram {
    std::filesystem::path file;
    int bank = 0;
    int number = 0;

    bool operator==(const BankProgram&) const = default;
};

/// One of the programs of an instrument.
struct PitchedProgram {
    std::size_t position = 0; ///< In the instrument's list.
    BankProgram program;

    bool operator==(const PitchedProgram&) const = default;
};

/// Returns the programs that an instrument and its parts play from a SoundFont, without percussion;
/// nothing if it plays something else. `file` is its SoundFont.
std::vector<PitchedProgram> pitchedPrograms(const Instrument& instrument,
                                            const std::filesystem::path& file);

/// Returns what brings the keys of a program into tune, as `measureTuning` does. What has been
/// measured once is kept in the user's cache folder, for banks with the same contents. Empty if it
/// is cancelled or the bank cannot be read. May be called on any thread.
std::optional<KeyCorrections> correctionsFor(const BankProgram& program,
                                             const std::function<bool()>& isCancelled);

/// Corrects the programs that an instrument and its parts play at once, for rendering without an
/// output. `file` is its SoundFont.
void correctTuning(Instrument& instrument, const std::filesystem::path& file);

} // namespace velmora
