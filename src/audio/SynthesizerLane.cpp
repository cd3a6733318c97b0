#include "audio/SynthesizerLane.h"

#include "audio/Program.h"
#include "midi/messages.h"

#include <spdlog/fmt/fmt.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <stdexcept>
#include <utility>

namespace velmora {

namespace {

/// The least number of FluidSynth's channels, which come in sixteens, with one for each part.
constexpr int kFluidChannels = 32;
static_assert(kParts <= kFluidChannels);

int channelOf(std::size_t part)
{
    return static_cast<int>(part);
}

/// Enough for a chord of octaves with several layers. Beyond it FluidSynth gives up the notes that
/// matter least, which keeps a storm of messages within the time of a period.
constexpr int kPolyphony = 32;

// See docs/decisions.md, 129.
constexpr int kQueuedVoices = 128;
constexpr int kMostNotesInBlock = 32;

/// Four typical notes peak near −6 dBFS. The limiter handles louder ones.
constexpr double kGain = 1.5;

/// The highest rate that FluidSynth supports.
constexpr double kHighestRate = 96000.0;

} // namespace

SynthesizerLane::SynthesizerLane(double rate, const SoundFontBank& bank)
    : divisor_(std::max(1.0, std::ceil(rate / kHighestRate))), rate_(rate / divisor_),
      settings_(new_fluid_settings(), delete_fluid_settings), synth_(nullptr, delete_fluid_synth),
      soundFont_(bank)
{
    if (rate < kLowestRate ||
        fluid_settings_setnum(settings_.get(), "synth.sample-rate", rate_) != FLUID_OK)
        throw std::runtime_error(
            fmt::format("FluidSynth does not support a sample rate of {:g} Hz", rate));
    fluid_settings_setint(settings_.get(), "synth.polyphony", kQueuedVoices);
    fluid_settings_setint(settings_.get(), "synth.threadsafe-api", 0); // needs no locks
    fluid_settings_setint(settings_.get(), "synth.midi-channels", kFluidChannels);
    fluid_settings_setnum(settings_.get(), "synth.gain", kGain);
    // Both modulate the pitch. The lanes share a reverberation without modulation instead.
    fluid_settings_setint(settings_.get(), "synth.chorus.active", 0);
    fluid_settings_setint(settings_.get(), "synth.reverb.active", 0);
    synth_.reset(new_fluid_synth(settings_.get()));
    if (!synth_)
        throw std::runtime_error("FluidSynth cannot create a synthesizer");
    fluid_synth_set_polyphony(synth_.get(), kPolyphony);
    // The first block allocates memory for the new polyphony.
    std::array<float, FractionalResampler::kBlock> ignored{};
    process(ignored.data(), ignored.data());
    // Otherwise the tenth could play nothing but drums.
    for (int channel = 0; channel < kFluidChannels; ++channel)
        fluid_synth_set_channel_type(synth_.get(), channel, CHANNEL_TYPE_MELODIC);
    fluid_synth_add_sfont(synth_.get(), bank.handle());
    loadPreset(0);
    for (std::size_t part = 0; part < kParts; ++part)
        readControllers(part);
    applyCents();
}

SynthesizerLane::~SynthesizerLane()
{
    // Otherwise the synthesizer would delete the bank.
    fluid_synth_remove_sfont(synth_.get(), soundFont_.handle());
}

void SynthesizerLane::noteOn(PartKey key, int velocity, double correction)
{
    const auto index = static_cast<std::size_t>(key.key);
    Part& part = parts_[key.part];
    if (index >= part.held.size() || notesInBlock_ == kMostNotesInBlock)
        return;
    ++notesInBlock_;
    const bool isFirst = isIdle();
    if (isFirst) {
        resampler_.clear();
        correction_ = correction;
        kept_ = 0.0;
        path_ = {};
        sounding_.reset();
    }
    sounding_.set(key.part);
    loadPreset(key.part);
    tunePart(key.part);
    fluid_synth_noteon(synth_.get(), channelOf(key.part), key.key, velocity);
    if (!isFirst)
        raiseNewest(key, std::round(correction - correction_ + kept_));
    part.held.set(index);
    silentBlocks_ = 0;
}

void SynthesizerLane::setCents(double cents, const Glide& glide)
{
    const double rise = cents - cents_;
    cents_ = cents;
    if (isIdle())
        return; // the next note begins there
    kept_ += rise;
    if (glide.movesSounding)
        path_.begin(std::exchange(kept_, 0.0), glide.seconds * rate_);
}

template <class Use> void SynthesizerLane::forVoices(PartKey key, const Use& use)
{
    std::array<fluid_voice_t*, kPolyphony + 1> voices{}; // ends with null
    fluid_synth_get_voicelist(synth_.get(), voices.data(), kPolyphony, -1);
    for (auto* const* voice = voices.begin(); *voice != nullptr; ++voice)
        if (fluid_voice_get_key(*voice) == key.key &&
            fluid_voice_get_channel(*voice) == channelOf(key.part))
            use(*voice);
}

void SynthesizerLane::raiseNewest(PartKey key, double cents)
{
    if (cents == 0.0)
        return;
    unsigned newest = 0;
    forVoices(key,
              [&](fluid_voice_t* voice) { newest = std::max(newest, fluid_voice_get_id(voice)); });
    forVoices(key, [&](fluid_voice_t* voice) {
        if (fluid_voice_get_id(voice) != newest)
            return;
        fluid_voice_gen_incr(voice, GEN_FINETUNE, static_cast<float>(cents));
        fluid_voice_update_param(voice, GEN_FINETUNE);
    });
}

void SynthesizerLane::raise(PartKey key, double cents)
{
    forVoices(key, [&](fluid_voice_t* voice) {
        fluid_voice_gen_incr(voice, GEN_FINETUNE, static_cast<float>(cents));
        fluid_voice_update_param(voice, GEN_FINETUNE);
    });
}

void SynthesizerLane::noteOff(PartKey key)
{
    const auto index = static_cast<std::size_t>(key.key);
    Part& part = parts_[key.part];
    if (index >= part.held.size() || !part.held.test(index))
        return;
    part.held.reset(index);
    fluid_synth_noteoff(synth_.get(), channelOf(key.part), key.key);
}

void SynthesizerLane::controlChange(std::size_t part, int number, int value)
{
    if (number == midi::kBankSelect) {
        parts_[part].selectedBank = value;
        return;
    }
    fluid_synth_cc(synth_.get(), channelOf(part), number, value);
    const auto index = static_cast<std::size_t>(number);
    if (index < kControllers)
        readController(part, index);
    else
        readControllers(part);
}

void SynthesizerLane::control(std::size_t index, int number, int value)
{
    Part& part = parts_[index];
    if (number == midi::kPitchWheel) {
        part.wheel = value;
        fluid_synth_pitch_bend(synth_.get(), channelOf(index), value);
    } else if (number == midi::kPressure) {
        part.pressure = value;
        fluid_synth_channel_pressure(synth_.get(), channelOf(index), value);
    } else {
        controlChange(index, number, value);
    }
}

void SynthesizerLane::readController(std::size_t part, std::size_t number)
{
    int value = 0;
    fluid_synth_get_cc(synth_.get(), channelOf(part), static_cast<int>(number), &value);
    parts_[part].controllers[number] = static_cast<std::int8_t>(value);
}

void SynthesizerLane::readControllers(std::size_t part)
{
    for (std::size_t i = 0; i < kControllers; ++i)
        readController(part, i);
}

void SynthesizerLane::programChange(std::size_t part, int program)
{
    parts_[part].preset = {parts_[part].selectedBank, program};
}

// Only when a note starts: an ensemble selects more programs than it plays on one lane.
void SynthesizerLane::loadPreset(std::size_t index)
{
    Part& part = parts_[index];
    if (part.loaded == part.preset)
        return;
    part.loaded = part.preset;
    const auto [bank, program] = part.preset;
    const int channel = channelOf(index);
    const int sfont = fluid_sfont_get_id(soundFont_.handle());
    // A program change by itself never reaches the drum kits of a melodic channel.
    if (fluid_synth_program_select(synth_.get(), channel, sfont, bank, program) != FLUID_OK &&
        (bank != kDrumKits ||
         fluid_synth_program_select(synth_.get(), channel, sfont, bank, 0) != FLUID_OK))
        fluid_synth_program_change(synth_.get(), channel, program);
}

void SynthesizerLane::followPitch(const SynthesizerLane& other)
{
    cents_ = other.cents_;
    wheel_ = other.wheel_;
}

void SynthesizerLane::followPart(std::size_t index, const SynthesizerLane& other)
{
    Part& part = parts_[index];
    const Part& model = other.parts_[index];
    part.preset = model.preset;
    part.selectedBank = model.selectedBank;
    for (std::size_t i = 0; i < kControllers; ++i) {
        if (part.controllers[i] != model.controllers[i])
            fluid_synth_cc(synth_.get(), channelOf(index), static_cast<int>(i),
                           model.controllers[i]);
    }
    part.controllers = model.controllers;
    if (part.wheel != model.wheel)
        control(index, midi::kPitchWheel, model.wheel);
    if (part.pressure != model.pressure)
        control(index, midi::kPressure, model.pressure);
}

void SynthesizerLane::allSoundsOff()
{
    fluid_synth_all_sounds_off(synth_.get(), -1); // on every channel
    for (Part& part : parts_)
        part.held.reset();
}

void SynthesizerLane::applyCents()
{
    const double wanted = wantedCents();
    const double whole = std::round(wanted);
    // Aim for the middle of a cent: see docs/decisions.md, 128.
    fineTune_ = static_cast<float>(whole + 0.5);
    for (std::size_t part = 0; part < kParts && sounding_.any(); ++part)
        if (sounding_[part])
            tunePart(part);
    resampler_.setStep(std::exp2((wanted - whole) / 1200.0) / divisor_);
    appliedCents_ = wanted;
}

void SynthesizerLane::tunePart(std::size_t index)
{
    Part& part = parts_[index];
    if (std::exchange(part.fineTune, fineTune_) != fineTune_)
        fluid_synth_set_gen(synth_.get(), channelOf(index), GEN_FINETUNE, fineTune_);
}

void SynthesizerLane::mix(float* left, float* right, std::size_t frames)
{
    if (!isIdle())
        resampler_.mix(left, right, frames, [this](float* l, float* r) { renderBlock(l, r); });
}

void SynthesizerLane::process(float* left, float* right)
{
    std::array<float*, 2> outputs = {left, right};
    fluid_synth_process(synth_.get(), static_cast<int>(FractionalResampler::kBlock), 0, nullptr,
                        static_cast<int>(outputs.size()), outputs.data());
}

void SynthesizerLane::renderBlock(float* left, float* right)
{
    constexpr std::size_t kBlock = FractionalResampler::kBlock;
    std::fill_n(left, kBlock, 0.0F);
    std::fill_n(right, kBlock, 0.0F);
    notesInBlock_ = 0;
    path_.step(kBlock);
    // See docs/decisions.md, 129.
    if (wantedCents() != appliedCents_)
        applyCents();
    // A held note may start with silence, so only a block without voices is a silent one.
    voices_ = static_cast<std::size_t>(fluid_synth_get_active_voice_count(synth_.get()));
    if (voices_ == 0) {
        ++silentBlocks_;
        return;
    }
    process(left, right);
    silentBlocks_ = 0;
}

} // namespace velmora
