#include "sound/MIDIInstrument.h"

#include "audio/AudioSource.h"
#include "midi/messages.h"
#include "sound/keys.h"
#include "tuning/Temperament.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

namespace velmora {

namespace {

/// How much of its velocity the soft pedal leaves to a note.
constexpr float kSoftness = 0.7F;

constexpr int kPercussionChannel = 9;

constexpr int kPitchClasses = 12;

/// How far in cents the channels are bent. The device can do more, but a note sounds more natural
/// if the nearest key of equal temperament is played, and adaptive temperaments need room. See
/// docs/decisions.md, 187.
constexpr double kFarthestBend = 150.0;

constexpr double kNotMoved = std::numeric_limits<double>::quiet_NaN();

/// Returns how far a key of equal temperament must be moved to a place. Places that are farther
/// away than three octaves cannot be heard, or are left at once.
double centsAbove(int sounding, double place)
{
    constexpr double kFarthest = 3600.0;
    return std::clamp(place - 100.0 * sounding, -kFarthest, kFarthest);
}

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
    : programs_(std::move(programs)), program_(first), isGeneralMidi_(isGeneralMidi),
      reading_(isGeneralMidi ? Reading::Plain : Reading::Musical)
{
    exchangeDevice(std::move(device));
}

std::unique_ptr<MusicDevice> MIDIInstrument::exchangeDevice(std::unique_ptr<MusicDevice> device)
{
    device_.swap(device);
    corrections_.assign(programs_.size(), {});
    device_->setPart(0);
    bank_ = programs_[program_].bank;
    send(midi::kControlChange, midi::kBankSelect, bank_);
    MIDIInstrument::setProgram(program_);
    device_->bend(bend_);
    device_->setGlide(glide_);
    for (std::size_t part = 1; part < kParts; ++part)
        if (parts_[part])
            sendPart(part);
    started_ = {};
    played_.reset();
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

void MIDIInstrument::playOn(std::size_t part, int key, float velocity)
{
    // See docs/decisions.md, 40.
    int value = static_cast<int>(velocity * 127.0F * volume_);
    // The pedal never silences a note.
    if (isSoft_ && value > 0)
        value = std::max(1, static_cast<int>(kSoftness * static_cast<float>(value)));
    Started& started = started_[part][static_cast<std::size_t>(key)];
    const auto path = isPercussion(part) ? Started::Path::Drum
                      : playsByKey_      ? Started::Path::Key
                                         : Started::Path::Channel;
    // The device would not know that this is the same key.
    if (started.mayMove && started.path != path)
        stopOn(part, key);
    started = {path, true, static_cast<std::uint8_t>(key), kNotMoved};
    played_.set(part);
    device_->setPart(part);
    if (path != Started::Path::Key) {
        const bool isDrum = path == Started::Path::Drum;
        device_->midiEvent(midi::kNoteOn | (isDrum ? kPercussionChannel : channelOf(key)), key,
                           value);
        return;
    }
    const double place = places_[static_cast<std::size_t>(key)];
    const int sounding = static_cast<int>(std::clamp(std::round(place / 100.0), 0.0, 127.0));
    started.sounding = static_cast<std::uint8_t>(sounding);
    started.cents = centsAbove(sounding, place);
    device_->keyOn(key, value, sounding, started.cents);
}

void MIDIInstrument::stopOn(std::size_t part, int key)
{
    const auto path = started_[part][static_cast<std::size_t>(key)].path;
    device_->setPart(part);
    if (path == Started::Path::Key)
        device_->keyOff(key);
    else
        device_->midiEvent(midi::kNoteOff |
                               (path == Started::Path::Drum ? kPercussionChannel : channelOf(key)),
                           key, 0);
}

void MIDIInstrument::controlPart(std::size_t part, int number, int value)
{
    device_->setPart(part);
    device_->controlPart(number, value);
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
    device_->setPart(0);
    send(midi::kControlChange, midi::kAllSoundOff, 0);
    for (std::size_t part = 0; part < kParts; ++part)
        for (std::size_t key = 0; played_[part] && key < started_[part].size(); ++key)
            started_[part][key].mayMove = false;
    played_.reset();
}

void MIDIInstrument::tune(const Temperament& temperament, int /*lo*/, int /*hi*/)
{
    if (reading_ == Reading::Plain || !device_->tunesKeys()) {
        bendChannels(temperament);
        playsByKey_ = false;
        return;
    }
    const bool didPlayByKey = playsByKey_;
    findPlaces(temperament);
    if (!playsByKey_)
        bendChannelsToPlaces();
    moveKeys(playsByKey_ || didPlayByKey);
}

// See docs/decisions.md, 33 and 37.
void MIDIInstrument::bendChannels(const Temperament& temperament)
{
    for (int pitchClass = 1; pitchClass < kPitchClasses; ++pitchClass) {
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

double MIDIInstrument::worstError(const Temperament& temperament) const
{
    if (reading_ == Reading::Musical)
        return 0.0;
    double worst = 0.0;
    for (int key = 0; key < static_cast<int>(places_.size()); ++key) {
        const int pitchClass = key % kPitchClasses;
        const double cents = temperament.getTuning(static_cast<unsigned>(pitchClass)).cent();
        const double bend =
            pitchClass == 0 ? 0.0 : std::clamp(cents - 100.0 * pitchClass, -200.0, 200.0);
        const double place = 1200.0 * std::log2(temperament.pitchAt(key) / equal.pitchAt(0));
        worst = std::max(worst, std::abs(100.0 * key + bend - place));
    }
    return worst;
}

void MIDIInstrument::findPlaces(const Temperament& temperament)
{
    const bool repeats = temperament.repeatsEveryOctave();
    playsByKey_ = !repeats;
    for (int key = 0; key < static_cast<int>(places_.size()); ++key) {
        double& place = places_[static_cast<std::size_t>(key)];
        if (repeats && key >= kPitchClasses) {
            place = places_[static_cast<std::size_t>(key - kPitchClasses)] + 1200.0;
            continue;
        }
        place = 1200.0 * std::log2(temperament.pitchAt(key) / equal.pitchAt(0));
        if (std::abs(place - 100.0 * key) > kFarthestBend)
            playsByKey_ = true;
    }
}

void MIDIInstrument::bendChannelsToPlaces()
{
    for (int pitchClass = 0; pitchClass < kPitchClasses; ++pitchClass) {
        const double cents = places_[static_cast<std::size_t>(pitchClass)] - 100.0 * pitchClass;
        const int bend = static_cast<int>(std::lround((cents + 200.0) * 8192.0 / 200.0));
        device_->midiEvent(midi::kPitchBend | channelOf(pitchClass), bend % 128, bend / 128);
    }
}

/// Moves the keys that sound: those that were started one by one, or all of them.
void MIDIInstrument::moveKeys(bool all)
{
    for (std::size_t part = 0; part < kParts; ++part) {
        if (!played_[part])
            continue;
        device_->setPart(part);
        for (int key = 0; key < static_cast<int>(started_[part].size()); ++key) {
            Started& started = started_[part][static_cast<std::size_t>(key)];
            const bool isKey = started.path == Started::Path::Key;
            if (!started.mayMove || started.path == Started::Path::Drum || (!isKey && !all))
                continue;
            const double cents =
                centsAbove(started.sounding, places_[static_cast<std::size_t>(key)]);
            if (cents != started.cents)
                device_->tuneKey(key, cents);
            started.cents = cents;
        }
    }
}

void MIDIInstrument::setProgram(std::size_t position)
{
    if (position >= programs_.size())
        return;
    program_ = position;
    const Program& program = programs_[position];
    device_->setPart(0);
    if (bank_ != program.bank)
        send(midi::kControlChange, midi::kBankSelect, program.bank);
    bank_ = program.bank;
    send(midi::kProgramChange, program.number, 0);
    device_->setCorrections(corrections_[position]);
    for (std::size_t part = 1; part < kParts; ++part)
        if (parts_[part])
            MIDIInstrument::setPart(part, parts_[part]->sound); // also called in the constructor
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
