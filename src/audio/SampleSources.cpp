#include "audio/SampleSources.h"

#include "base/FormatError.h"

#include <al.h>

#include <algorithm>
#include <array>

namespace velmora {

namespace {

// See docs/decisions.md, 27.
constexpr float kFirstGain = 0.4F;

/// OpenAL allows no more.
constexpr float kMaximumGain = 16.0F;

/// OpenAL doubles the list and takes 32 KB for each voice, so small instruments get fewer voices
/// than a processor can render.
constexpr std::size_t kFewVoices = 512 - SampleSources::kBatch;
constexpr std::size_t kManyVoices = 2048 - SampleSources::kBatch;
constexpr std::size_t kBytesPerVoice = 1 << 15;

/// The length of the silence with which voices are prepared.
constexpr std::size_t kSilentFrames = 1024;
constexpr int kSilentRate = 48000;

/// Returns how many voices an instrument of so many bytes on the device may sound together.
std::size_t usefulVoices(std::size_t bytes)
{
    return std::clamp(bytes / kBytesPerVoice, kFewVoices, kManyVoices);
}

} // namespace

std::uint32_t SampleSources::add(unsigned buffer, bool loops, Use use)
{
    const std::lock_guard lock(mutex_);
    const auto here = scope();
    std::array<unsigned, 2> sources{};
    alGenSources(2, sources.data());
    if (sources[1] == 0)
        throw FormatError("OpenAL has no source left for it: unload another instrument first");
    for (const unsigned source : sources) {
        alSourcef(source, AL_GAIN, kFirstGain);
        alSource3f(source, AL_POSITION, 0.0F, 0.0F, 0.0F);
        alSourcef(source, AL_PITCH, 1.0F);
        alSourcei(source, AL_BUFFER, static_cast<ALint>(buffer));
        if (use == Use::Musical)
            alSourcef(source, AL_MAX_GAIN, kMaximumGain);
        alSourcei(source, AL_LOOPING, loops ? AL_TRUE : AL_FALSE);
    }
    if (free_.empty()) {
        free_.push_back(static_cast<std::uint32_t>(second_.size()));
        voices_.resize(voices_.size() + 2);
        second_.push_back(0);
        dues_.push_back(0.0);
    }
    if (!isReserved_)
        isPrepared_ = false;
    const std::uint32_t number = free_.back();
    free_.pop_back();
    // See docs/decisions.md, 176.
    ALint channels = 0;
    alGetBufferi(buffer, AL_CHANNELS, &channels);
    for (std::uint32_t which = 0; which < 2; ++which) {
        SampleVoice& voice = voices_[2 * number + which];
        voice.source = sources[which];
        voice.level = use == Use::Musical && channels == 1 ? 1.0F / device_->monoLevel() : 1.0F;
    }
    return number;
}

void SampleSources::remove(std::uint32_t number)
{
    const std::lock_guard lock(mutex_);
    const auto here = scope();
    for (std::uint32_t which = 0; which < 2; ++which) {
        SampleVoice& voice = voices_[2 * number + which];
        alDeleteSources(1, &voice.source);
        voice = {};
    }
    free_.push_back(number);
}

bool SampleSources::prepare()
{
    if (isPrepared_)
        return false;
    isPrepared_ = true;
    if (isReserved_)
        return true;
    std::vector<unsigned> sources;
    for (const SampleVoice& voice : voices_)
        if (voice.source != 0)
            sources.push_back(voice.source);
    sources.resize(std::min(sources.size(), usefulVoices(bytes)));
    if (sources.size() <= limit_)
        return false;
    const auto here = scope();
    makeLimit(sources);
    return true;
}

void SampleSources::reserve(std::size_t expectedBytes)
{
    const auto here = scope();
    const std::vector<std::int16_t> silence(kSilentFrames);
    unsigned buffer = 0;
    alGenBuffers(1, &buffer);
    alBufferData(buffer, AL_FORMAT_MONO16, silence.data(),
                 static_cast<ALsizei>(silence.size() * sizeof silence.front()), kSilentRate);
    std::vector<unsigned> sources(usefulVoices(expectedBytes));
    alGenSources(static_cast<ALsizei>(sources.size()), sources.data());
    for (const unsigned source : sources)
        alSourcei(source, AL_BUFFER, static_cast<ALint>(buffer));
    makeLimit(sources);
    alDeleteSources(static_cast<ALsizei>(sources.size()), sources.data());
    alDeleteBuffers(1, &buffer);
    isReserved_ = true;
    isPrepared_ = false;
}

void SampleSources::makeLimit(std::span<const unsigned> sources)
{
    limit_ = sources.size();
    device_->prepare(sources, kBatch);
    for (const unsigned source : sources)
        alSourcef(source, AL_GAIN, kFirstGain);
}

double SampleSources::order(std::uint32_t number, double due)
{
    const std::lock_guard lock(mutex_);
    double& last = dues_[number];
    last = std::max(last, due);
    return last;
}

} // namespace velmora
