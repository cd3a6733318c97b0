#include "audio/PcmBuilder.h"

#include "base/FormatError.h"
#include "base/Log.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

namespace velmora {

namespace {

/// Limits the memory that is reserved for the length in a header: see docs/decisions.md, 131.
constexpr std::size_t kUsualSamplesPerByte = 8;

/// Limits what a file can decode to. Even silence takes a few bytes for each block of about ten
/// thousand samples.
constexpr std::size_t kMaximumSamplesPerByte = 1 << 14;

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

} // namespace

// Diagnostics keep their texts: see docs/decisions.md, 125.

PcmBuilder::PcmBuilder(std::string name, int channels, double rate, std::int64_t frames,
                       std::size_t fileSize, Precision precision)
    : name_(std::move(name)), precision_(precision), pcm_{{}, channels, rate}, fileSize_(fileSize)
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
    const auto claimed = static_cast<std::size_t>(std::max<std::int64_t>(frames, 0));
    const std::size_t usual = fileSize * kUsualSamplesPerByte;
    const std::size_t expected = std::min(claimed, usual) * static_cast<std::size_t>(channels);
    if (precision == Precision::Float)
        pcm_.floats.reserve(expected);
    else
        pcm_.samples.reserve(expected);
}

void PcmBuilder::checkSize(std::size_t added) const
{
    if ((pcm_.size() + added) / kMaximumSamplesPerByte > fileSize_)
        throw FormatError("has more samples than a file of its size can have");
}

void PcmBuilder::add(std::span<const std::int16_t> samples)
{
    checkSize(samples.size());
    pcm_.samples.insert(pcm_.samples.end(), samples.begin(), samples.end());
}

void PcmBuilder::add(std::span<const float> samples)
{
    checkSize(samples.size());
    if (precision_ == Precision::Float)
        std::ranges::transform(samples, std::back_inserter(pcm_.floats), finite);
    else
        std::ranges::transform(samples, std::back_inserter(pcm_.samples), narrow);
}

void PcmBuilder::logReadError(int status) const
{
    const Logger log = logger("audio");
    log.debug("MyGetOpenALAudioData: ExtAudioFileRead FAILED, Error = {}", status);
    log.warn("{}: is damaged, only a part can be decoded", name_);
}

Pcm PcmBuilder::take()
{
    if (pcm_.size() == 0)
        throw FormatError("has no samples");
    return std::move(pcm_);
}

} // namespace velmora
