#pragma once

#include "audio/MusicDevice.h"

#include <filesystem>
#include <functional>
#include <optional>

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

/// Returns the program that an instrument plays from a SoundFont, or nothing if it plays something
/// else or percussion. `file` is its SoundFont.
std::optional<BankProgram> pitchedProgram(const Instrument& instrument,
                                          const std::filesystem::path& file);

/// Returns what brings the keys of a program into tune, as `measureTuning` does. What has been
/// measured once is kept in the user's cache folder, for banks with the same contents. Empty if it
/// is cancelled or the bank cannot be read. May be called on any thread.
std::optional<KeyCorrections> correctionsFor(const BankProgram& program,
                                             const std::function<bool()>& isCancelled);

/// Corrects the selected program of an instrument at once, for rendering without an output.
/// `file` is its SoundFont.
void correctTuning(Instrument& instrument, const std::filesystem::path& file);

} // namespace velmora
