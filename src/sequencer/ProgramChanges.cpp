#include "sequencer/ProgramChanges.h"

#include "audio/Program.h"
#include "midi/MidiFileEvents.h"
#include "midi/messages.h"
#include "sequencer/SequenceTime.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace velmora {

namespace {

/// Returns what selects a program or a bank, in order of time.
std::vector<const FileEvent*> selectionsIn(const MidiFileEvents& file)
{
    std::vector<const FileEvent*> events;
    for (const FileTrack& track : file.tracks)
        for (const FileEvent& event : track.events) {
            const int kind = event.status & midi::kKindMask;
            if (kind == midi::kProgramChange ||
                (kind == midi::kControlChange && event.data[0] == midi::kBankSelect))
                events.push_back(&event);
        }
    std::ranges::stable_sort(events, {}, &FileEvent::tick);
    return events;
}

} // namespace

PartSound::Preset presetOn(std::size_t channel, int bank, int number)
{
    const bool isPercussion = channel == kDrumChannel;
    return {.bank = isPercussion ? kDrumKits : bank,
            .number = static_cast<std::uint8_t>(number),
            .isPercussion = isPercussion};
}

ProgramChanges programChangesOf(const MidiFileEvents& file)
{
    struct Channel {
        int bank = 0;
        bool hasBegun = false;
    };
    std::array<Channel, midi::kChannels> channels;
    ProgramChanges changes;
    for (const FileEvent* event : selectionsIn(file)) {
        const auto number = static_cast<std::uint8_t>(event->status & midi::kChannelMask);
        Channel& channel = channels[number];
        if ((event->status & midi::kKindMask) == midi::kControlChange) {
            channel.bank = static_cast<std::uint8_t>(event->data[1]);
            continue;
        }
        if (channel.hasBegun)
            changes.push_back({.step = static_cast<double>(event->tick) / file.header.ticksPerBeat *
                                       kStepsPerBeat,
                               .channel = number,
                               .preset = presetOn(number, channel.bank, event->data[0])});
        channel.hasBegun = true;
    }
    return changes;
}

ProgramChanges programsAt(const ProgramChanges& changes, double step)
{
    std::array<const ProgramChange*, midi::kChannels> last{};
    for (const ProgramChange& change : changes) {
        if (change.step > step)
            break;
        last.at(change.channel) = &change;
    }
    ProgramChanges programs;
    for (const ProgramChange* change : last)
        if (change != nullptr)
            programs.push_back(*change);
    return programs;
}

} // namespace velmora
