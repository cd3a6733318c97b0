#include "sound/MIDIInstrument.h"

#include "audio/AudioSource.h"
#include "midi/messages.h"
#include "sound/keys.h"
#include "tuning/Temperament.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace velmora {

namespace {

/// How much of its velocity the soft pedal leaves to a note.
constexpr float kSoftness = 0.7F;

constexpr int kPercussionChannel = 9;

/// The channel of a pitch class. A moves to channel 12.
int channelOf(int key)
{
    const int pitchClass = key % 12;
    // See docs/decisions.md, 32.
    return pitchClass == kPercussionChannel ? 12 : pitchClass;
}

std::vector<Program> generalMidiPrograms()
{
    std::vector<Program> programs(128);
    for (int number = 0; Program & program : programs)
        program.number = number++;
    return programs;
}

} // namespace

MIDIInstrument::MIDIInstrument(std::unique_ptr<MusicDevice> device)
    // See docs/decisions.md, 39.
    : MIDIInstrument(std::move(device), generalMidiPrograms(), 2, true)
{
}

MIDIInstrument::MIDIInstrument(std::unique_ptr<MusicDevice> device, std::vector<Program> programs)
    : MIDIInstrument(std::move(device), std::move(programs), 0, false)
{
}

MIDIInstrument::MIDIInstrument(std::unique_ptr<MusicDevice> device, std::vector<Program> programs,
                               std::size_t first, bool isGeneralMidi)
    : programs_(std::move(programs)), program_(first), isGeneralMidi_(isGeneralMidi)
{
    exchangeDevice(std::move(device));
}

std::unique_ptr<MusicDevice> MIDIInstrument::exchangeDevice(std::unique_ptr<MusicDevice> device)
{
    device_.swap(device);
    corrections_.assign(programs_.size(), {});
    bank_ = programs_[program_].bank;
    send(midi::kControlChange, midi::kBankSelect, bank_);
    MIDIInstrument::setProgram(program_);
    device_->bend(bend_);
    device_->setGlide(glide_);
    return device;
}

// See docs/decisions.md, 38.
void MIDIInstrument::send(int kind, int data1, int data2)
{
    for (int channel = 0; channel < midi::kChannels; ++channel)
        device_->midiEvent(kind | channel, data1, data2);
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
    const bool isDrum = programs_[program_].isPercussion;
    struckDrums_.set(static_cast<std::size_t>(key), isDrum);
    device_->midiEvent(midi::kNoteOn | (isDrum ? kPercussionChannel : channelOf(key)), key, value);
}

void MIDIInstrument::stop(int key)
{
    const bool isDrum = struckDrums_.test(static_cast<std::size_t>(key));
    device_->midiEvent(midi::kNoteOff | (isDrum ? kPercussionChannel : channelOf(key)), key, 0);
}

void MIDIInstrument::bend(double cents)
{
    bend_ = cents;
    device_->bend(cents);
}

void MIDIInstrument::setGlide(const Glide& glide)
{
    glide_ = glide;
    device_->setGlide(glide);
}

void MIDIInstrument::silence()
{
    send(midi::kControlChange, midi::kAllSoundOff, 0);
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

void MIDIInstrument::setProgram(std::size_t position)
{
    if (position >= programs_.size())
        return;
    program_ = position;
    const Program& program = programs_[position];
    if (bank_ != program.bank)
        send(midi::kControlChange, midi::kBankSelect, program.bank);
    bank_ = program.bank;
    send(midi::kProgramChange, program.number, 0);
    device_->setCorrections(corrections_[position]);
}

void MIDIInstrument::setCorrections(std::size_t program, const KeyCorrections& corrections)
{
    corrections_.at(program) = corrections;
    if (program == program_)
        device_->setCorrections(corrections);
}

// The bank that is played comes first, then the lowest.
void MIDIInstrument::setInstrument(std::uint8_t number)
{
    std::optional<std::size_t> found;
    for (std::size_t i = 0; i < programs_.size(); ++i) {
        if (programs_[i].number == number && (!found || programs_[i].bank == bank_))
            found = i;
    }
    if (found)
        setProgram(*found);
}

bool MIDIInstrument::isSounding() const
{
    const AudioSource* source = device_->source();
    return source != nullptr && source->voices() > 0;
}

} // namespace velmora
