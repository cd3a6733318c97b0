#include "import/sf2Points.h"

#include "import/ImportOptions.h"
#include "import/RIFF.h"
#include "import/sf2Bank.h"
#include "import/sf2Zones.h"

#include <algorithm>
#include <cstdint>
#include <span>
#include <vector>

namespace velmora {

namespace sf2 {

namespace {

bool has24Bits(const Bank& bank, const ImportOptions& options)
{
    return !options.to16Bit && bank.lowBytes != nullptr &&
           bank.lowBytes->length() >= bank.pool.length() / sizeof(std::int16_t);
}

std::size_t framesOf(const Sides& sides)
{
    const Zone& leader = sides.leader();
    if (leader.mode == Zone::Mode::Loop)
        return leader.loopEnd - leader.begin;
    const std::size_t left = sides.left.end - sides.left.begin;
    return sides.right ? std::max<std::size_t>(left, sides.right->end - sides.right->begin) : left;
}

/// Repeats the samples of a loop that ends at the frame `end` up to the end of the sound.
template <class Value> void repeat(std::vector<Value>& values, std::size_t channels,
                                   std::size_t channel, std::size_t end, std::size_t loop)
{
    for (std::size_t i = end * channels + channel; i < values.size(); i += channels)
        values[i] = values[i - loop * channels];
}

/// Reads points into one channel, a block at a time, so that a long sound is held only once.
void read(const Bank& bank, const Zone& zone, std::size_t count, std::size_t channel, Pcm& pcm)
{
    constexpr std::size_t kBlock = 1 << 15;
    constexpr float kFullScale = 1 << 23;
    const auto channels = static_cast<std::size_t>(pcm.channels);
    std::vector<std::int16_t> high(kBlock);
    std::vector<std::uint8_t> low(pcm.floats.empty() ? 0 : kBlock);
    for (std::size_t done = 0; done < count; done += kBlock) {
        const std::size_t block = std::min(kBlock, count - done);
        const std::size_t from = zone.begin + done;
        bank.pool.read(from * sizeof(std::int16_t),
                       std::as_writable_bytes(std::span(high).first(block)));
        std::size_t place = done * channels + channel;
        if (low.empty()) {
            for (std::size_t i = 0; i < block; ++i, place += channels)
                pcm.samples[place] = high[i];
            continue;
        }
        bank.lowBytes->read(from, std::as_writable_bytes(std::span(low).first(block)));
        for (std::size_t i = 0; i < block; ++i, place += channels)
            pcm.floats[place] = static_cast<float>(high[i] * 256 + low[i]) / kFullScale;
    }
}

/// Fills one channel.
void fill(const Bank& bank, const Zone& zone, std::size_t channel, Pcm& pcm)
{
    const auto channels = static_cast<std::size_t>(pcm.channels);
    const bool loops = zone.mode == Zone::Mode::Loop;
    const std::size_t own = (loops ? zone.loopEnd : zone.end) - zone.begin;
    read(bank, zone, std::min(own, pcm.size() / channels), channel, pcm);
    if (!loops)
        return;
    const std::size_t loop = zone.loopEnd - zone.loopBegin;
    repeat(pcm.samples, channels, channel, own, loop);
    repeat(pcm.floats, channels, channel, own, loop);
}

/// Mixes both channels.
template <class Value> void mix(std::vector<Value>& values)
{
    for (std::size_t i = 0; i + 1 < values.size(); i += 2)
        values[i / 2] = static_cast<Value>((values[i] + values[i + 1]) / 2);
    values.resize(values.size() / 2);
    values.shrink_to_fit();
}

} // namespace

Pcm readPoints(const Bank& bank, const Sides& sides, const ImportOptions& options)
{
    Pcm pcm;
    pcm.rate = sides.left.rate;
    pcm.channels = sides.right ? 2 : 1;
    const std::size_t size = framesOf(sides) * static_cast<std::size_t>(pcm.channels);
    if (has24Bits(bank, options))
        pcm.floats.resize(size);
    else
        pcm.samples.resize(size);
    fill(bank, sides.left, 0, pcm);
    if (sides.right)
        fill(bank, *sides.right, 1, pcm);
    if (sides.right && options.toMono) {
        mix(pcm.samples);
        mix(pcm.floats);
        pcm.channels = 1;
    }
    return pcm;
}

std::size_t bytesOf(const Bank& bank, const Sides& sides, const ImportOptions& options)
{
    return framesOf(sides) * (sides.right && !options.toMono ? 2 : 1) *
           (has24Bits(bank, options) ? sizeof(float) : sizeof(std::int16_t));
}

} // namespace sf2

} // namespace velmora
