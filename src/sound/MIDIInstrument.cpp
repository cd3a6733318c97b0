#include "sound/MIDIInstrument.h"

#include "midi/messages.h"
#include "sound/keys.h"
#include "tuning/Temperament.h"

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

/// How much of its velocity the soft pedal leaves to a note.
constexpr float kSoftness = 0.7F;

/// The channel of a pitch class. Channel 9 is General MIDI's percussion, so A moves to channel 12.
int channelOf(int key)
{
    const int pitchClass = key % 12;
    // See docs/decisions.md, 32.
    return pitchClass == 9 ? 12 : pitchClass;
}

} // namespace

MIDIInstrument::MIDIInstrument(std::unique_ptr<MusicDevice> device)
{
    exchangeDevice(std::move(device));
}

std::unique_ptr<MusicDevice> MIDIInstrument::exchangeDevice(std::unique_ptr<MusicDevice> device)
{
    device_.swap(device);
    // See docs/decisions.md, 38.
    for (int channel = 0; channel < midi::kChannels; ++channel)
        device_->midiEvent(midi::kControlChange | channel, midi::kBankSelect, 0);
    setInstrument(program_);
    device_->bend(bend_);
    return device;
}

bool MIDIInstrument::hasSubMenu() const
{
    return true;
}

float MIDIInstrument::getVolume(std::size_t stop) const
{
    return stop == 0 ? volume_ : 0.0F;
}

void MIDIInstrument::setVolume(std::size_t stop, float volume)
{
    if (stop == 0)
        volume_ = volume;
}

std::size_t MIDIInstrument::numStops() const
{
    return 1;
}

void MIDIInstrument::play(int key, float velocity)
{
    // See docs/decisions.md, 40.
    int value = static_cast<int>(velocity * 127.0F * volume_);
    // The pedal never silences a note.
    if (isSoft_ && value > 0)
        value = std::max(1, static_cast<int>(kSoftness * static_cast<float>(value)));
    device_->midiEvent(midi::kNoteOn | channelOf(key), key, value);
}

void MIDIInstrument::stop(int key)
{
    device_->midiEvent(midi::kNoteOff | channelOf(key), key, 0);
}

void MIDIInstrument::bend(double cents)
{
    bend_ = cents;
    device_->bend(cents);
}

void MIDIInstrument::silence()
{
    for (int channel = 0; channel < midi::kChannels; ++channel)
        device_->midiEvent(midi::kControlChange | channel, midi::kAllSoundOff, 0);
}

// See docs/decisions.md, 33 and 37.
void MIDIInstrument::tune(const Temperament& temperament, int /*lo*/, int /*hi*/)
{
    for (int pitchClass = 1; pitchClass < 12; ++pitchClass) {
        const double cents = temperament.getTuning(static_cast<unsigned>(pitchClass)).cent();
        // The default bend range is ±200 cents, which are ±64 steps of the most significant byte.
        // See docs/decisions.md, 34 to 36.
        const double bend = (cents - 100.0 * pitchClass) * 64.0 / 200.0;
        const double steps = std::floor(bend);
        const int leastSignificant = static_cast<int>((bend - steps) * 128.0);
        const int mostSignificant = static_cast<int>(steps) + 64;
        device_->midiEvent(midi::kPitchBend | channelOf(pitchClass), leastSignificant,
                           mostSignificant);
    }
}

void MIDIInstrument::setInstrument(std::uint8_t program)
{
    program_ = program;
    for (int channel = 0; channel < midi::kChannels; ++channel)
        device_->midiEvent(midi::kProgramChange | channel, program, 0);
}

} // namespace velmora
