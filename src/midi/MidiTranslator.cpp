#include "midi/MidiTranslator.h"

#include "midi/messages.h"

#include <algorithm>
#include <utility>

namespace velmora {

namespace {

/// The values of a controller from which on a pedal is down and a button pressed.
constexpr std::uint8_t kFirstHigh = 64;

/// The number of bytes of a channel message.
std::size_t lengthOf(std::uint8_t kind)
{
    return kind == midi::kProgramChange || kind == midi::kChannelPressure ? 2 : 3;
}

bool isPedal(std::uint8_t number)
{
    return number == midi::kSustain || number == midi::kSostenuto || number == midi::kSoft;
}

} // namespace

MidiTranslator::MidiTranslator(const PlayingSettings& settings, LearnedControls& learned,
                               MusicalInput& input)
    : settings_(settings), learned_(learned), input_(input)
{
    reset();
}

void MidiTranslator::reset()
{
    for (Channel& channel : channels_) {
        channel.sounding.fill(kNoKey);
        channel.down.reset();
        channel.high.reset();
    }
    cents_ = 0.0;
}

void MidiTranslator::read(MidiPacket message)
{
    if (message.empty() || message[0] < midi::kStatusBit || message[0] >= midi::kFirstSystemStatus)
        return;
    const std::uint8_t kind = message[0] & midi::kKindMask;
    const int channel = message[0] & midi::kChannelMask;
    const MidiPacket data = message.subspan(1);
    if (message.size() != lengthOf(kind) ||
        std::ranges::any_of(data, [](std::uint8_t byte) { return byte >= midi::kStatusBit; }))
        return;
    switch (kind) {
    case midi::kNoteOn:
        readNote(channel, data[0], data[1]);
        break;
    case midi::kNoteOff:
        readNote(channel, data[0], 0);
        break;
    case midi::kControlChange:
        readController(channel, data[0], data[1]);
        break;
    case midi::kProgramChange:
        input_.setProgram(data[0]);
        break;
    case midi::kChannelPressure:
        input_.controlled(midi::kPressure, data[0]);
        break;
    case midi::kPitchBend:
        input_.controlled(midi::kPitchWheel, data[0] + 128 * data[1]);
        bend(100.0 * (settings_.bendRange * (data[0] + 128 * data[1] - midi::kWheelCentre)) /
             midi::kWheelCentre);
        break;
    default: // the pressure of a key
        break;
    }
}

void MidiTranslator::readNote(int channel, std::uint8_t key, std::uint8_t velocity)
{
    std::uint8_t& sounding = channels_[static_cast<std::size_t>(channel)].sounding[key];
    const MidiControl control{MidiControl::Kind::Key, static_cast<std::uint8_t>(channel), key};
    if (velocity == 0) {
        // The transposition may have changed since the key was pressed, or the key learned.
        if (sounding != kNoKey) {
            release(channel, key);
            input_.midiInput();
        }
        return;
    }
    if (learned_.bind(control)) {
        input_.learned(control);
        return;
    }
    if (const LearnedAction action = learned_.get(control);
        action.kind != LearnedAction::Kind::None) {
        if (action.kind == LearnedAction::Kind::Volume)
            input_.toggleVolume(action.slider);
        else if (action.kind == LearnedAction::Kind::MasterVolume)
            input_.toggleMasterVolume();
        else
            input_.perform(action.kind);
        return;
    }
    const int target = key + settings_.transposition;
    if (sounding != kNoKey && sounding != target)
        release(channel, key); // the device has not sent its key-off
    if (target < 0 || target > 127)
        return;
    sounding = static_cast<std::uint8_t>(target);
    input_.keyOn(target, velocityOf(settings_.velocityCurve, velocity), channel);
    input_.midiInput();
}

void MidiTranslator::release(int channel, std::uint8_t key)
{
    auto& sounding = channels_[static_cast<std::size_t>(channel)].sounding;
    const std::uint8_t target = std::exchange(sounding[key], kNoKey);
    if (std::ranges::find(sounding, target) == sounding.end())
        input_.keyOff(target, channel);
}

void MidiTranslator::readController(int channel, std::uint8_t number, std::uint8_t value)
{
    if (number >= midi::kAllSoundOff) {
        readMode(channel, number);
        return;
    }
    auto& high = channels_[static_cast<std::size_t>(channel)].high;
    const bool isHigh = value >= kFirstHigh;
    const MidiControl control{MidiControl::Kind::Controller, static_cast<std::uint8_t>(channel),
                              number};
    if (learned_.bind(control)) {
        setPedal(channel, number, false); // it will no longer act as a pedal
        high[number] = isHigh;
        input_.learned(control);
    } else if (const LearnedAction action = learned_.get(control);
               action.kind != LearnedAction::Kind::None) {
        const bool wasHigh = high[number];
        high[number] = isHigh;
        useLearned(action, value, isHigh && !wasHigh);
    } else {
        input_.controlled(number, value);
        moveController(channel, number, value);
    }
}

void MidiTranslator::moveController(int channel, std::uint8_t number, std::uint8_t value)
{
    if (isPedal(number)) {
        setPedal(channel, number, value >= kFirstHigh);
    } else if (const auto slider = sliderOf(number)) {
        const float volume = static_cast<float>(value) / 127.0F;
        if (!input_.moveConsole(number, volume, channel))
            input_.setVolume(volume, *slider);
    }
}

void MidiTranslator::useLearned(LearnedAction action, std::uint8_t value, bool wentHigh)
{
    const float volume = static_cast<float>(value) / 127.0F;
    if (action.kind == LearnedAction::Kind::Volume)
        input_.setVolume(volume, action.slider);
    else if (action.kind == LearnedAction::Kind::MasterVolume)
        input_.setMasterVolume(volume);
    else if (wentHigh)
        input_.perform(action.kind);
}

void MidiTranslator::readMode(int channel, std::uint8_t number)
{
    if (number == midi::kAllSoundOff) {
        // See docs/decisions.md, 138.
        releaseAll(channel);
        input_.silence();
    } else if (number == midi::kResetControllers) {
        for (const std::uint8_t pedal : {midi::kSustain, midi::kSostenuto, midi::kSoft})
            setPedal(channel, pedal, false);
        bend(0.0);
    } else if (number >= midi::kAllNotesOff) {
        releaseAll(channel);
    }
}

void MidiTranslator::releaseAll(int channel)
{
    const auto& sounding = channels_[static_cast<std::size_t>(channel)].sounding;
    bool isAnyReleased = false;
    for (std::size_t key = 0; key < sounding.size(); ++key) {
        if (sounding[key] == kNoKey)
            continue;
        release(channel, static_cast<std::uint8_t>(key));
        isAnyReleased = true;
    }
    if (isAnyReleased)
        input_.midiInput();
}

void MidiTranslator::setPedal(int channel, std::uint8_t number, bool isDown)
{
    auto& down = channels_[static_cast<std::size_t>(channel)].down;
    if (!isPedal(number) || down[number] == isDown)
        return; // a pedal that moves sends many values, and sostenuto must not catch keys again
    down[number] = isDown;
    if (number == midi::kSustain)
        input_.setSustain(isDown, channel);
    else if (number == midi::kSostenuto)
        input_.setSostenuto(isDown, channel);
    else
        input_.setSoft(std::ranges::any_of(
            channels_, [](const Channel& one) { return one.down[midi::kSoft]; }));
}

void MidiTranslator::bend(double cents)
{
    if (std::exchange(cents_, cents) != cents)
        input_.bend(cents);
}

} // namespace velmora
