#include "audio/SynthesizerLane.h"

#include "midi/messages.h"

#include <spdlog/fmt/fmt.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <stdexcept>

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

SynthesizerLane::SynthesizerLane(double rate, SynthesizerLane* bankOwner)
    : synthRate_(rate / std::max(1.0, std::ceil(rate / kHighestRate))), divisor_(rate / synthRate_),
      settings_(new_fluid_settings(), delete_fluid_settings), synth_(nullptr, delete_fluid_synth)
{
    if (fluid_settings_setnum(settings_.get(), "synth.sample-rate", synthRate_) != FLUID_OK)
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
    if (bankOwner != nullptr) {
        borrowedBank_ = fluid_synth_get_sfont(bankOwner->synth_.get(), 0);
        if (borrowedBank_ != nullptr)
            fluid_synth_add_sfont(synth_.get(), borrowedBank_);
    }
    readControllers();
    applyCents();
}

SynthesizerLane::~SynthesizerLane()
{
    // Otherwise the synthesizer would delete the bank.
    if (borrowedBank_ != nullptr)
        fluid_synth_remove_sfont(synth_.get(), borrowedBank_);
}

void SynthesizerLane::setRate(double rate)
{
    divisor_ = rate / synthRate_;
    applyCents();
}

bool SynthesizerLane::loadBank(const char* path)
{
    return fluid_is_soundfont(path) != 0 &&
           fluid_synth_sfload(synth_.get(), path, 1) != FLUID_FAILED;
}

void SynthesizerLane::noteOn(int key, int velocity)
{
    const auto index = static_cast<std::size_t>(key);
    if (index >= held_.size() || notesInBlock_ == kMostNotesInBlock)
        return;
    ++notesInBlock_;
    if (isIdle())
        resampler_.clear();
    fluid_synth_noteon(synth_.get(), kChannel, key, velocity);
    held_.set(index);
    silentBlocks_ = 0;
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
    fluid_synth_program_change(synth_.get(), kChannel, program);
    bank_ = controllers_[midi::kBankSelect];
    program_ = program;
}

void SynthesizerLane::follow(const SynthesizerLane& other)
{
    cents_ = other.cents_;
    if (bank_ != other.bank_ || program_ != other.program_) {
        fluid_synth_cc(synth_.get(), kChannel, midi::kBankSelect, other.bank_);
        programChange(other.program_);
        bank_ = other.bank_;
    }
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
    const double whole = std::round(cents_);
    // Aim for the middle of a cent: see docs/decisions.md, 128.
    fluid_synth_set_gen(synth_.get(), kChannel, GEN_FINETUNE, static_cast<float>(whole + 0.5));
    resampler_.setStep(std::exp2((cents_ - whole) / 1200.0) / divisor_);
    appliedCents_ = cents_;
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
    // See docs/decisions.md, 129.
    if (cents_ != appliedCents_)
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
