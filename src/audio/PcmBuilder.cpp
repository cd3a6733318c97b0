#include "audio/PcmBuilder.h"

#include "base/FormatError.h"
#include "base/Log.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace velmora {

namespace {

/// Room is made beforehand for what a header claims, as far as the size of the file bears it out.
constexpr std::size_t kUsualSamplesPerByte = 8;

/// Even silence takes a few bytes in each block of some ten thousand samples.
constexpr std::size_t kMostSamplesPerByte = 1 << 14;

std::int16_t narrow(std::int32_t sample)
{
    constexpr std::int64_t kHalf = 1 << 15;
    return static_cast<std::int16_t>(std::min<std::int64_t>((sample + kHalf) >> 16, INT16_MAX));
}

std::int16_t narrow(float sample)
{
    if (std::isnan(sample))
        return 0;
    return static_cast<std::int16_t>(
        std::lrint(std::clamp(sample * 32768.0F, -32768.0F, 32767.0F)));
}

} // namespace

PcmBuilder::PcmBuilder(int channels, double rate, std::int64_t frames, std::size_t fileSize)
    : pcm_{{}, channels, rate}, fileSize_(fileSize)
{
    if (channels > 2) {
        logger("platform")
            .info("MyGetOpenALAudioData - Unsupported Format, channel count is greater than "
                  "stereo");
        throw FormatError("has " + std::to_string(channels) + " channels, where two are the most");
    }
    if (channels < 1 || !(rate > 0.0))
        throw FormatError("is a sound file without channels or rate");
    const auto claimed = static_cast<std::size_t>(std::max<std::int64_t>(frames, 0));
    const std::size_t usual = fileSize * kUsualSamplesPerByte;
    pcm_.samples.reserve(std::min(claimed, usual) * static_cast<std::size_t>(channels));
}

void PcmBuilder::checkSize(std::size_t added) const
{
    if ((pcm_.samples.size() + added) / kMostSamplesPerByte > fileSize_)
        throw FormatError("claims more sound than it can hold");
}

void PcmBuilder::add(std::span<const std::int16_t> samples)
{
    checkSize(samples.size());
    pcm_.samples.insert(pcm_.samples.end(), samples.begin(), samples.end());
}

void PcmBuilder::add(std::span<const std::int32_t> samples)
{
    checkSize(samples.size());
    std::transform(samples.begin(), samples.end(), std::back_inserter(pcm_.samples),
                   [](std::int32_t sample) { return narrow(sample); });
}

void PcmBuilder::add(std::span<const float> samples)
{
    checkSize(samples.size());
    std::transform(samples.begin(), samples.end(), std::back_inserter(pcm_.samples),
                   [](float sample) { return narrow(sample); });
}

Pcm PcmBuilder::take()
{
    if (pcm_.samples.empty())
        throw FormatError("holds no sound");
    return std::move(pcm_);
}

} // namespace velmora
