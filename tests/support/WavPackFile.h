#pragma once

#include <wavpack/wavpack.h>

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

/// The bytes of a WavPack file of 44100 Hz. Integers fill the lowest bytes of a sample; with
/// `isFloat` they are the bits of floats.
inline std::vector<std::byte> wavPackFile(std::vector<std::int32_t> samples, int channels,
                                          int bytesPerSample, bool isFloat = false)
{
    std::vector<std::byte> file;
    const auto append = [](void* id, void* data, std::int32_t count) {
        const auto bytes =
            std::span(static_cast<std::byte*>(data), static_cast<std::size_t>(count));
        auto& whole = *static_cast<std::vector<std::byte>*>(id);
        whole.insert(whole.end(), bytes.begin(), bytes.end());
        return 1;
    };
    WavpackContext* context = WavpackOpenFileOutput(append, &file, nullptr);
    WavpackConfig config{};
    config.bytes_per_sample = bytesPerSample;
    config.bits_per_sample = 8 * bytesPerSample;
    config.float_norm_exp = isFloat ? 127 : 0;
    config.num_channels = channels;
    config.channel_mask = channels == 1 ? 4 : (1 << channels) - 1;
    config.sample_rate = 44100;
    const auto frames =
        static_cast<std::uint32_t>(samples.size()) / static_cast<unsigned>(channels);
    WavpackSetConfiguration64(context, &config, frames, nullptr);
    WavpackPackInit(context);
    WavpackPackSamples(context, samples.data(), frames);
    WavpackFlushSamples(context);
    WavpackCloseFile(context);
    return file;
}
