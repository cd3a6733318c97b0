#include "sound/TunedMidiWriter.h"

#include "midi/messages.h"
#include "tuning/Temperament.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace velmora {

namespace {

constexpr std::uint16_t kDivision = 4096;

/// In cents; less is not called wrong.
constexpr double kAudibleError = 1.0;

// The registered parameter of the range of the pitch wheel, and none.
constexpr int kParameterHigh = 101, kParameterLow = 100, kDataHigh = 6, kDataLow = 38;
constexpr int kBendRange = 0, kNoParameter = 127;

std::uint32_t microsecondsOfBeat(double tempo)
{
    return static_cast<std::uint32_t>(std::clamp(std::round(6e7 / tempo), 1.0, 16777215.0));
}

} // namespace

TunedMidiWriter::Beats TunedMidiWriter::steadyBeats(double perMinute)
{
    const double microseconds = microsecondsOfBeat(perMinute);
    return {.at = [=](double seconds) { return seconds * 1e6 / microseconds; },
            .tempos = {{.beat = 0.0, .perMinute = perMinute}},
            .signatures = {}};
}

TunedMidiWriter::TunedMidiWriter(const Program& program, double rate)
    : rate_(rate), own_{.preset = {.bank = program.bank,
                                   .number = static_cast<std::uint8_t>(program.number),
                                   .isPercussion = program.isPercussion}}
{
    parts_.fill(own_);
    writtenBends_.fill(BendChannels::kCentre);
}

void TunedMidiWriter::setBeats(Beats beats)
{
    beats_ = std::move(beats);
    setUp();
}

void TunedMidiWriter::writeBeatsUntil(std::uint64_t tick)
{
    const auto tickAt = [](double beat) {
        return static_cast<std::uint64_t>(std::llround(beat * kDivision));
    };
    const auto isDue = [&](const auto& list, std::size_t written) {
        return written < list.size() && tickAt(list[written].beat) <= tick;
    };
    while (isDue(beats_.tempos, tempos_) || isDue(beats_.signatures, signatures_)) {
        const bool isTempo = isDue(beats_.tempos, tempos_) &&
                             !(isDue(beats_.signatures, signatures_) &&
                               beats_.signatures[signatures_].beat < beats_.tempos[tempos_].beat);
        if (!isTempo) {
            const Beats::Signature& signature = beats_.signatures[signatures_++];
            track_.addMetaEvent(tickAt(signature.beat), midi::kTimeSignature, signature.data);
            continue;
        }
        const Beats::Tempo& tempo = beats_.tempos[tempos_++];
        std::string data;
        for (const unsigned shift : {16U, 8U, 0U})
            data += static_cast<char>(microsecondsOfBeat(tempo.perMinute) >> shift & 0xFF);
        track_.addMetaEvent(tickAt(tempo.beat), midi::kTempo, data);
    }
}

/// A device that is switched on may have other programs and ranges.
void TunedMidiWriter::setUp()
{
    const PartSound::Preset& own = own_.preset;
    for (std::size_t channel = 0; channel < BendChannels::kChannels; ++channel) {
        if (own.isPercussion != (channel == BendChannels::kPercussion))
            continue;
        send(midi::kProgramChange, channel, own.number, 0);
        writtenSounds_[channel].preset = own;
        send(midi::kControlChange, channel, kParameterHigh, kBendRange);
        send(midi::kControlChange, channel, kParameterLow, kBendRange);
        send(midi::kControlChange, channel, kDataHigh, BendChannels::kRange);
        send(midi::kControlChange, channel, kDataLow, 0);
        send(midi::kControlChange, channel, kParameterHigh, kNoParameter);
        send(midi::kControlChange, channel, kParameterLow, kNoParameter);
        send(midi::kPitchBend, channel, 0, BendChannels::kCentre >> 7);
    }
}

void TunedMidiWriter::render(float* left, float* right, std::size_t frames, double /*start*/)
{
    std::fill_n(left, frames, 0.0F);
    std::fill_n(right, frames, 0.0F);
    frames_ += frames;
}

std::uint64_t TunedMidiWriter::tick() const
{
    return static_cast<std::uint64_t>(
        std::llround(beats_.at(static_cast<double>(frames_) / rate_) * kDivision));
}

void TunedMidiWriter::send(int kind, std::size_t channel, int data1, int data2)
{
    writeBeatsUntil(tick());
    const int status = kind | static_cast<int>(channel);
    if (kind == midi::kProgramChange)
        track_.addMessage(tick(), {status, data1});
    else
        track_.addMessage(tick(), {status, data1, data2});
}

void TunedMidiWriter::writeBend(std::size_t channel)
{
    const int bend = channels_.bend(channel);
    if (bend != std::exchange(writtenBends_[channel], bend))
        send(midi::kPitchBend, channel, bend & 0x7F, bend >> 7);
}

void TunedMidiWriter::tune(const Temperament& temperament, int lo, int hi)
{
    isOctave_ = temperament.repeatsEveryOctave();
    for (int key = lo; key <= hi; ++key) {
        const auto slot = static_cast<std::size_t>(key);
        // An octave higher than usual: see docs/decisions.md, 1.
        places_[slot] = 69.0 + 12.0 * std::log2(temperament.getPitch(slot) / 880.0);
        mapped_.set(slot, temperament.isMapped(key));
    }
    // What dies away moves as well.
    for (std::size_t channel = 0; channel < struck_.size(); ++channel) {
        const auto& struck = struck_[channel];
        if (!struck || (!movesSounding_ && channels_.isSounding(channel)))
            continue;
        channels_.move(channel, struck->written, places_[static_cast<std::size_t>(struck->key)]);
        writeBend(channel);
    }
}

bool TunedMidiWriter::setPart(std::size_t part, const PartSound& sound)
{
    parts_.at(part) = {.preset = sound.preset.value_or(own_.preset), .volume = sound.volume};
    return true;
}

void TunedMidiWriter::writeSound(std::size_t channel, const Sound& sound)
{
    const Sound before = std::exchange(writtenSounds_[channel], sound);
    if (before.preset.bank != sound.preset.bank && !sound.preset.isPercussion)
        send(midi::kControlChange, channel, midi::kBankSelect, sound.preset.bank);
    if (before.preset != sound.preset)
        send(midi::kProgramChange, channel, sound.preset.number, 0);
    if (before.volume != sound.volume)
        send(midi::kControlChange, channel, midi::kChannelVolume, sound.volume);
}

void TunedMidiWriter::playOn(std::size_t part, int key, float velocity)
{
    const auto slot = static_cast<std::size_t>(key);
    stopOn(part, key);
    if (!mapped_[slot])
        return;
    const int value = std::clamp(static_cast<int>(std::lround(velocity * 127.0F)), 1, 127);
    const Sound& sound = parts_.at(part);
    BendChannels::Voice voice{BendChannels::kPercussion, key, 0.0};
    if (!sound.preset.isPercussion) {
        const auto found = std::ranges::find(sounds_, sound);
        const auto number = static_cast<std::size_t>(found - sounds_.begin());
        if (found == sounds_.end())
            sounds_.push_back(sound);
        // Several sounds cannot share the twelve channels of the pitch classes.
        const bool isShared = isOctave_ && sounds_.size() == 1;
        voice = channels_.start(places_[slot], isShared ? std::optional(slot % 12) : std::nullopt,
                                number);
        writeBend(voice.channel);
        struck_[voice.channel] = Struck{key, voice.key};
    }
    ++notes_.count;
    if (const double error = std::abs(voice.cents); error > kAudibleError) {
        ++notes_.wrong;
        notes_.worstCents = std::max(notes_.worstCents, error);
    }
    writeSound(voice.channel, sound);
    voices_[part][slot] = voice;
    send(midi::kNoteOn, voice.channel, voice.key, value);
}

void TunedMidiWriter::stopOn(std::size_t part, int key)
{
    const auto voice = std::exchange(voices_[part][static_cast<std::size_t>(key)], std::nullopt);
    if (!voice)
        return;
    send(midi::kNoteOff, voice->channel, voice->key, 0);
    if (voice->channel != BendChannels::kPercussion)
        channels_.end(*voice);
}

void TunedMidiWriter::silence()
{
    for (std::size_t part = 0; part < kParts; ++part)
        for (int key = 0; key <= kLastKey; ++key)
            stopOn(part, key);
}

std::string TunedMidiWriter::finish()
{
    silence();
    writeBeatsUntil(tick());
    return track_.finish(kDivision);
}

} // namespace velmora
