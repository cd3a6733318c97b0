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

TunedMidiWriter::TunedMidiWriter(const Program& program, double tempo, double rate)
    : program_(program), ticksPerFrame_(kDivision * 1e6 / microsecondsOfBeat(tempo) / rate)
{
    const std::uint32_t beat = microsecondsOfBeat(tempo);
    std::string data;
    for (const unsigned shift : {16U, 8U, 0U})
        data += static_cast<char>(beat >> shift & 0xFF);
    track_.addMetaEvent(0, midi::kTempo, data);
    writtenBends_.fill(BendChannels::kCentre);
    setUp();
}

/// A device that is switched on may have other programs and ranges.
void TunedMidiWriter::setUp()
{
    for (std::size_t channel = 0; channel < BendChannels::kChannels; ++channel) {
        if (program_.isPercussion != (channel == BendChannels::kPercussion))
            continue;
        send(midi::kProgramChange, channel, program_.number, 0);
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
    return static_cast<std::uint64_t>(std::llround(static_cast<double>(frames_) * ticksPerFrame_));
}

void TunedMidiWriter::send(int kind, std::size_t channel, int data1, int data2)
{
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
    if (program_.isPercussion)
        return;
    // What dies away moves as well.
    for (std::size_t channel = 0; channel < struck_.size(); ++channel) {
        const auto& struck = struck_[channel];
        if (!struck || (!movesSounding_ && channels_.isSounding(channel)))
            continue;
        channels_.move(channel, struck->written, places_[static_cast<std::size_t>(struck->key)]);
        writeBend(channel);
    }
}

void TunedMidiWriter::play(int key, float velocity)
{
    const auto slot = static_cast<std::size_t>(key);
    stop(key);
    if (!mapped_[slot])
        return;
    const int value = std::clamp(static_cast<int>(std::lround(velocity * 127.0F)), 1, 127);
    BendChannels::Voice voice{BendChannels::kPercussion, key, 0.0};
    if (!program_.isPercussion) {
        voice = channels_.start(places_[slot], isOctave_ ? std::optional(slot % 12) : std::nullopt);
        writeBend(voice.channel);
        struck_[voice.channel] = Struck{key, voice.key};
    }
    ++notes_.count;
    if (const double error = std::abs(voice.cents); error > kAudibleError) {
        ++notes_.wrong;
        notes_.worstCents = std::max(notes_.worstCents, error);
    }
    voices_[slot] = voice;
    send(midi::kNoteOn, voice.channel, voice.key, value);
}

void TunedMidiWriter::stop(int key)
{
    const auto voice = std::exchange(voices_[static_cast<std::size_t>(key)], std::nullopt);
    if (!voice)
        return;
    send(midi::kNoteOff, voice->channel, voice->key, 0);
    if (!program_.isPercussion)
        channels_.end(*voice);
}

void TunedMidiWriter::silence()
{
    for (int key = 0; key <= kLastKey; ++key)
        stop(key);
}

std::string TunedMidiWriter::finish()
{
    silence();
    return track_.finish(kDivision);
}

} // namespace velmora
