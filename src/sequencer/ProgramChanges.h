#pragma once

#include "sound/PartSound.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace velmora {

struct MidiFileEvents;

/// The channel of the voice that plays drums.
constexpr std::size_t kDrumChannel = 9;

/// Returns the program that a file selects by its numbers on a channel.
PartSound::Preset presetOn(std::size_t channel, int bank, int number);

/// The program that a voice plays from a step on; empty for that of the instrument.
struct ProgramChange {
    double step;
    std::uint8_t channel; ///< 0…15.
    std::optional<PartSound::Preset> preset;

    bool operator==(const ProgramChange&) const = default;
};

/// In order of time.
using ProgramChanges = std::vector<ProgramChange>;

/// Returns the changes of program within a piece. The first program of each channel is not among
/// them: the voice begins with it.
ProgramChanges programChangesOf(const MidiFileEvents& file);

/// Returns the last change at or before a step, for each channel that has one.
ProgramChanges programsAt(const ProgramChanges& changes, double step);

} // namespace velmora
