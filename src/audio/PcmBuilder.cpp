#include "audio/PcmBuilder.h"

#include "base/FormatError.h"
#include "base/Log.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>
#include <utility>

namespace velmora {

namespace {

/// Limits the memory that is reserved for the length in a header: see docs/decisions.md, 131.
constexpr std::size_t kUsualSamplesPerByte = 8;

/// Limits what a file can decode to. Even silence takes a few bytes for each block of about ten
/// thousand samples.
constexpr std::size_t kMaximumSamplesPerByte = 1 << 14;

/// The size of a buffer of OpenAL has 31 bits.
constexpr std::size_t kMaximumBytes = std::numeric_limits<std::int32_t>::max();

/// Returns 0 for what is not a number.
float finite(float sample)
{
    return std::isfinite(sample) ? sample : 0.0F;
}

std::int16_t narrow(float sample)
{
    if (std::isnan(sample))
        return 0;
    return static_cast<std::int16_t>(
        std::lrint(std::clamp(sample * 32768.0F, -32768.0F, 32767.0F)));
}

/// Returns the means of the two channels.
template <class Sample> std::vector<Sample> mixed(std::span<const Sample> samples)
{
    std::vector<Sample> result(samples.size() / 2);
    for (std::size_t i = 0; i < result.size(); ++i)
        result[i] = static_cast<Sample>((samples[2 * i] + samples[2 * i + 1]) / 2);
    return result;
}

} // namespace

// Diagnostics keep their texts: see docs/decisions.md, 125.

PcmBuilder::PcmBuilder(std::string name, int channels, double rate, std::int64_t frames,
                       std::size_t fileSize, Precision precision, const DecodingOptions& options)
    : name_(std::move(name)),
      precision_(options.to16Bit ? Precision::Bits16 : precision), pcm_{{},
                                                                        options.toMono ? 1
                                                                                       : channels,
                                                                        rate},
      fileSize_(fileSize), options_(options), mixed_(options.toMono && channels == 2 ? 2 : 1),
      claimed_(static_cast<std::size_t>(std::max<std::int64_t>(frames, 0)) *
               static_cast<std::size_t>(std::max(channels, 1)))
{
    const Logger log = logger("audio");
    if (channels > 2) {
        log.debug(
            "MyGetOpenALAudioData - Unsupported Format, channel count is greater than stereo");
        throw FormatError("has " + std::to_string(channels) +
                          " channels, but at most two are supported");
    }
    if (channels < 1 || !(rate > 0.0)) {
        log.debug("ERROR : ExtAudioFileGetProperty, {}", channels);
        throw FormatError("has no channels or no sample rate");
    }
    if (frames < 0)
        log.debug("MyGetOpenALAudioData: ExtAudioFileGetProperty("
                  "kExtAudioFileProperty_FileLengthFrames) FAILED, Error = {}",
                  frames);
    const std::size_t usual = fileSize * kUsualSamplesPerByte * static_cast<std::size_t>(channels);
    reserve(std::min(claimed_, usual) / mixed_);
}

void PcmBuilder::reserve(std::size_t samples)
{
    const std::size_t bytes = samples * sampleSize();
    if (bytes > kMaximumBytes)
        throw FormatError("is longer than a sound may be: it has more than 2 GB of samples");
    options_.memory->require(bytes);
    if (precision_ == Precision::Float)
        pcm_.floats.reserve(samples);
    else
        pcm_.samples.reserve(samples);
}

std::size_t PcmBuilder::sampleSize() const
{
    return precision_ == Precision::Float ? sizeof(float) : sizeof(std::int16_t);
}

void PcmBuilder::makeRoom(std::size_t added)
{
    decoded_ += added;
    if (decoded_ / kMaximumSamplesPerByte > fileSize_)
        throw FormatError("has more samples than a file of its size can have");
    const std::size_t needed = pcm_.size() + added / mixed_;
    const std::size_t capacity = std::max(pcm_.samples.capacity(), pcm_.floats.capacity());
    if (needed > capacity)
        reserve(std::max(needed, std::min(2 * capacity, kMaximumBytes / sampleSize())));
}

void PcmBuilder::add(std::span<const std::int16_t> samples)
{
    makeRoom(samples.size());
    const auto append = [this](std::span<const std::int16_t> added) {
        pcm_.samples.insert(pcm_.samples.end(), added.begin(), added.end());
    };
    if (mixed_ == 2)
        append(mixed(samples));
    else
        append(samples);
}

void PcmBuilder::add(std::span<const float> samples)
{
    makeRoom(samples.size());
    const auto append = [this](std::span<const float> added) {
        if (precision_ == Precision::Float)
            std::ranges::transform(added, std::back_inserter(pcm_.floats), finite);
        else
            std::ranges::transform(added, std::back_inserter(pcm_.samples), narrow);
    };
    if (mixed_ == 2)
        append(mixed(samples));
    else
        append(samples);
}

void PcmBuilder::readError(int status) const
{
    const Logger log = logger("audio");
    log.debug("MyGetOpenALAudioData: ExtAudioFileRead FAILED, Error = {}", status);
    if (options_.damage == Damage::Refused)
        throw FormatError("is damaged or cut short");
    log.warn("{}: is damaged, only a part can be decoded", name_);
}

Pcm PcmBuilder::take()
{
    if (pcm_.size() == 0)
        throw FormatError("has no samples");
    if (options_.damage == Damage::Refused && decoded_ < claimed_)
        throw FormatError("is damaged or cut short");
    return std::move(pcm_);
}

} // namespace velmora
