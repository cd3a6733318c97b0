#include "audio/SynthesizerLane.h"

#include "midi/messages.h"

#include <spdlog/fmt/fmt.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <stdexcept>
#include <utility>

namespace velmora {

namespace {

constexpr int kChannel = 0;

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
    fluid_synth_add_sfont(synth_.get(), bank.handle());
    programChange(0);
    readControllers();
    applyCents();
}

SynthesizerLane::~SynthesizerLane()
{
    // Otherwise the synthesizer would delete the bank.
    fluid_synth_remove_sfont(synth_.get(), soundFont_.handle());
}

void SynthesizerLane::noteOn(int key, int velocity, double correction)
{
    const auto index = static_cast<std::size_t>(key);
    if (index >= held_.size() || notesInBlock_ == kMostNotesInBlock)
        return;
    ++notesInBlock_;
    const bool isFirst = isIdle();
    if (isFirst) {
        resampler_.clear();
        correction_ = correction;
        kept_ = 0.0;
        path_ = {};
    }
    fluid_synth_noteon(synth_.get(), kChannel, key, velocity);
    if (!isFirst)
        raiseNewest(key, std::round(correction - correction_ + kept_));
    held_.set(index);
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

void SynthesizerLane::raiseNewest(int key, double cents)
{
    if (cents == 0.0)
        return;
    std::array<fluid_voice_t*, kPolyphony + 1> voices{}; // ends with null
    fluid_synth_get_voicelist(synth_.get(), voices.data(), kPolyphony, -1);
    unsigned newest = 0;
    for (auto* const* voice = voices.begin(); *voice != nullptr; ++voice)
        if (fluid_voice_get_key(*voice) == key)
            newest = std::max(newest, fluid_voice_get_id(*voice));
    for (auto* const* voice = voices.begin(); *voice != nullptr; ++voice) {
        if (fluid_voice_get_key(*voice) != key || fluid_voice_get_id(*voice) != newest)
            continue;
        fluid_voice_gen_incr(*voice, GEN_FINETUNE, static_cast<float>(cents));
        fluid_voice_update_param(*voice, GEN_FINETUNE);
    }
}

void SynthesizerLane::raise(int key, double cents)
{
    std::array<fluid_voice_t*, kPolyphony + 1> voices{}; // ends with null
    fluid_synth_get_voicelist(synth_.get(), voices.data(), kPolyphony, -1);
    for (auto* const* voice = voices.begin(); *voice != nullptr; ++voice) {
        if (fluid_voice_get_key(*voice) != key)
            continue;
        fluid_voice_gen_incr(*voice, GEN_FINETUNE, static_cast<float>(cents));
        fluid_voice_update_param(*voice, GEN_FINETUNE);
    }
}

void SynthesizerLane::noteOff(int key)
{
    const auto index = static_cast<std::size_t>(key);
    if (index >= held_.size() || !held_.test(index))
        return;
    held_.reset(index);
    fluid_synth_noteoff(synth_.get(), kChannel, key);
}

void SynthesizerLane::controlChange(int number, int value)
{
    if (number == midi::kBankSelect) {
        selectedBank_ = value;
        return;
    }
    fluid_synth_cc(synth_.get(), kChannel, number, value);
    readControllers();
}

void SynthesizerLane::readControllers()
{
    for (std::size_t i = 0; i < kControllers; ++i)
        fluid_synth_get_cc(synth_.get(), kChannel, static_cast<int>(i), &controllers_[i]);
}

void SynthesizerLane::programChange(int program)
{
    bank_ = selectedBank_;
    program_ = program;
    // A program change by itself never reaches the drum kits of a melodic channel.
    if (fluid_synth_program_select(synth_.get(), kChannel, fluid_sfont_get_id(soundFont_.handle()),
                                   bank_, program) != FLUID_OK)
        fluid_synth_program_change(synth_.get(), kChannel, program);
}

void SynthesizerLane::follow(const SynthesizerLane& other)
{
    cents_ = other.cents_;
    wheel_ = other.wheel_;
    if (bank_ != other.bank_ || program_ != other.program_) {
        selectedBank_ = other.bank_;
        programChange(other.program_);
    }
    selectedBank_ = other.selectedBank_;
    for (std::size_t i = 0; i < kControllers; ++i) {
        if (controllers_[i] != other.controllers_[i])
            fluid_synth_cc(synth_.get(), kChannel, static_cast<int>(i), other.controllers_[i]);
    }
    controllers_ = other.controllers_;
}

void SynthesizerLane::allSoundsOff()
{
    fluid_synth_all_sounds_off(synth_.get(), kChannel);
    held_.reset();
}

void SynthesizerLane::applyCents()
{
    const double wanted = wantedCents();
    const double whole = std::round(wanted);
    // Aim for the middle of a cent: see docs/decisions.md, 128.
    fluid_synth_set_gen(synth_.get(), kChannel, GEN_FINETUNE, static_cast<float>(whole + 0.5));
    resampler_.setStep(std::exp2((wanted - whole) / 1200.0) / divisor_);
    appliedCents_ = wanted;
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
