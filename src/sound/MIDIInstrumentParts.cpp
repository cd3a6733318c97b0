// What the parts of an ensemble play.

#include "midi/messages.h"
#include "sound/MIDIInstrument.h"

#include <algorithm>
#include <cassert>

namespace velmora {

/// Returns what comes nearest to a preset. What the bank does not have is played with the program
/// of the instrument.
MIDIInstrument::Selected
MIDIInstrument::selectedFor(const std::optional<PartSound::Preset>& preset) const
{
    const Program& own = programs_[program_];
    Selected selected{own.bank, own.number, own.isPercussion, program_};
    if (!preset)
        return selected;
    if (isGeneralMidi_) { // whose list has neither the kits of the bank nor its variations
        if (preset->isPercussion)
            return {kDrumKits, preset->number, true, std::nullopt};
        return {preset->bank, preset->number, false,
                preset->bank == 0 ? std::optional<std::size_t>(preset->number) : std::nullopt};
    }
    int best = 0;
    for (std::size_t position = 0; position < programs_.size(); ++position) {
        const Program& program = programs_[position];
        const bool hasNumber = program.number == preset->number;
        if (program.isPercussion != preset->isPercussion || !(hasNumber || program.isPercussion))
            continue;
        const int rank = 1 + (hasNumber ? 2 : 0) + (program.bank == preset->bank ? 1 : 0);
        if (rank > best)
            selected = {program.bank, program.number, program.isPercussion, position};
        best = std::max(best, rank);
    }
    return selected;
}

bool MIDIInstrument::setPart(std::size_t part, const PartSound& sound)
{
    assert(part > 0 && part < kParts);
    const Selected selected = selectedFor(sound.preset);
    auto& own = parts_.at(part);
    if (!own || own->selected != selected || own->sound.volume != sound.volume) {
        own = {sound, selected};
        sendPart(part);
    }
    own->sound = sound;
    return true;
}

void MIDIInstrument::expectPresets(std::span<const PartSound::Preset> presets)
{
    expected_.assign(presets.begin(), presets.end());
}

void MIDIInstrument::sendPart(std::size_t part)
{
    const auto& [sound, selected] = *parts_[part];
    device_->setPart(part);
    send(midi::kControlChange, midi::kBankSelect, selected.bank);
    send(midi::kProgramChange, selected.number, 0);
    send(midi::kControlChange, midi::kChannelVolume, sound.volume);
    device_->setCorrections(selected.program ? corrections_[*selected.program] : KeyCorrections{});
}

bool MIDIInstrument::isPercussion(std::size_t part) const
{
    return parts_[part] ? parts_[part]->selected.isPercussion : programs_[program_].isPercussion;
}

std::vector<std::size_t> MIDIInstrument::playedPrograms() const
{
    std::vector<std::size_t> positions{program_};
    const auto add = [&](const Selected& selected) {
        if (selected.program && std::ranges::find(positions, *selected.program) == positions.end())
            positions.push_back(*selected.program);
    };
    for (const auto& part : parts_)
        if (part)
            add(part->selected);
    for (const PartSound::Preset& preset : expected_)
        add(selectedFor(preset));
    return positions;
}

void MIDIInstrument::setCorrections(std::size_t program, const KeyCorrections& corrections)
{
    corrections_.at(program) = corrections;
    for (std::size_t part = 0; part < kParts; ++part) {
        if (part == 0 ? program != program_
                      : !parts_[part] || parts_[part]->selected.program != program)
            continue;
        device_->setPart(part);
        device_->setCorrections(corrections);
    }
}

} // namespace velmora
