#pragma once

#include "app/AppDelegate.h"

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace velmora {

/// What the command line chooses to play with.
struct Selection {
    std::string tuning = "Equal";        ///< "Equal", "Quartercomma Meantone", "Dynamic" or a file.
    std::filesystem::path instrument;    ///< A file; empty for the General MIDI player.
    std::optional<std::uint8_t> program; ///< General MIDI program, 0…127.
    std::vector<std::pair<std::size_t, float>> stops; ///< Number of a stop and its gain.
};

/// Reads an instrument file, with the application as its host. Needs a current OpenAL context.
/// Throws UsageError when it has no name of an instrument file; std::runtime_error with a sentence
/// when it cannot be read.
std::unique_ptr<InstrumentDocument> readInstrument(const std::filesystem::path& path,
                                                   AppDelegate& application);

/// Makes the selection current. Throws UsageError when it names what does not exist;
/// std::runtime_error with a sentence when one of its files cannot be read.
void select(const Selection& selection, AppDelegate& application);

} // namespace velmora
