#pragma once

#include "app/AppDelegate.h"

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace velmora {

/// The tuning, instrument and stops chosen on the command line.
struct Selection {
    std::string tuning = "Equal";     ///< The name of a built-in tuning, or a file.
    std::filesystem::path mapping;    ///< A keyboard mapping for it; empty for none.
    Transposition transposition;      ///< Of that tuning.
    std::filesystem::path instrument; ///< An instrument file; empty for the General MIDI player.
    bool plain = false;               ///< Read devices and files plainly, whatever is preferred.
    bool asStops = false;             ///< Lay out the instruments of a SoundFont as stops.
    std::optional<int> bank;
    std::optional<std::string> program; ///< The number or name of a program of that bank.
    std::vector<std::pair<std::size_t, float>> stops; ///< Stop numbers, from 0, and their gains.
};

/// Reads an instrument file with the application as its host and in its reading. Needs a current
/// OpenAL context. Throws UsageError if the file's extension does not belong to an instrument
/// format, or std::runtime_error with a sentence if the file cannot be read.
std::unique_ptr<InstrumentDocument> readInstrument(const std::filesystem::path& path, bool asStops,
                                                   AppDelegate& application);

/// Applies the selection. Throws UsageError if it names something that does not exist, or
/// std::runtime_error with a sentence if one of its files cannot be read.
void select(const Selection& selection, AppDelegate& application);

} // namespace velmora
