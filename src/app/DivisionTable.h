#pragma once

#include "sequencer/SequenceHost.h"
#include "sound/ConsoleDefinition.h"

#include <cstddef>
#include <string>
#include <vector>

namespace velmora {

/// What plays a division of an organ: a MIDI channel, a device, or a channel of a device.
struct DivisionRoute {
    std::string device;          ///< The name of a MIDI device; empty for all and for sequences.
    int channel = kEveryChannel; ///< 0…15, or `kEveryChannel`.
    std::size_t division = 0;

    bool operator==(const DivisionRoute&) const = default;
};

/// The first route that fits decides. What none fits plays the lowest manual.
using DivisionTable = std::vector<DivisionRoute>;

/// Returns the table of an organ for which the user has made none: the manuals from the lowest one
/// upwards on the first channels, then the pedals.
/// See docs/decisions.md, 161.
DivisionTable defaultDivisions(const ConsoleDefinition& definition);

/// Returns the division that a channel, 0…15, of a device plays, or of a sequence if `device` is
/// empty.
std::size_t divisionFor(const DivisionTable& table, const std::string& device, int channel,
                        std::size_t lowestManual);

} // namespace velmora
