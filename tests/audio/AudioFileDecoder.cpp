#include "audio/AudioFileDecoder.h"

#include "base/File.h"
#include "base/FormatError.h"
#include "support/OrganFolder.h"

#include <gmock/gmock.h>
#include <sndfile.h>
#include <wavpack/wavpack.h>

namespace velmora {

namespace {

using Words = std::vector<std::int32_t>;
using Samples = std::vector<std::int16_t>;

constexpr int kWav = SF_FORMAT_WAV | SF_FORMAT_PCM_16;
constexpr int kFlac = SF_FORMAT_FLAC | SF_FORMAT_PCM_24;
constexpr int kWavPack = SF_FORMAT_PCM_24, kFloatWavPack = SF_FORMAT_FLOAT; ///< Without container.

/// Silence, both ends, and either side of where rounding to 16 bits turns.
const Words kWords = {0, INT32_MAX, INT32_MIN, 0x12347fff, 0x12348000, -0x12348100, -1, 256};
const Samples kRounded = {0, 32767, -32768, 0x1234, 0x1235, -0x1235, 0, 0};
const Samples kCut = {0, 32767, -32768, 0x1234, 0x1234, -0x1235, -1, 0};

/// The bits of 0.5, -0.5, 1, -1, 8 and no number.
const Words kFloats = {0x3f000000, -0x41000000, 0x3f800000, -0x40800000, 0x41000000, 0x7fc00000};
const Samples kClipped = {16384, -16384, 32767, -32768, 32767, 0};

std::string writeWavPack(const std::string& path, bool floats, int channels, Words words)
{
    std::ofstream file(path, std::ios::binary);
    const auto append = [](void* id, void* data, std::int32_t count) {
        static_cast<std::ofstream*>(id)->write(static_cast<char*>(data), count);
        return 1;
    };
    WavpackConfig config{};
    config.bytes_per_sample = floats ? 4 : 3;
    config.bits_per_sample = 8 * config.bytes_per_sample;
    config.float_norm_exp = floats ? 127 : 0;
    config.num_channels = channels;
    config.sample_rate = 44100;
    for (std::int32_t& word : words)
        word >>= 32 - config.bits_per_sample;
    const auto frames = static_cast<unsigned>(words.size()) / static_cast<unsigned>(channels);
    WavpackContext* context = WavpackOpenFileOutput(append, &file, nullptr);
    WavpackSetConfiguration64(context, &config, frames, nullptr);
    WavpackPackInit(context);
    WavpackPackSamples(context, words.data(), frames);
    WavpackFlushSamples(context);
    WavpackCloseFile(context);
    return path;
}

/// Writes samples of 32 bits, or the bits of floats, to a file of 44100 Hz.
std::string write(int format, int channels, const Words& words)
{
    static const OrganFolder folder;
    auto path = (folder.path() / "sound").string();
    const bool floats = (format & SF_FORMAT_SUBMASK) == SF_FORMAT_FLOAT;
    if (format == kWavPack || format == kFloatWavPack)
        return writeWavPack(path, floats, channels, words);
    SF_INFO info{0, 44100, channels, format, 0, 0};
    SNDFILE* file = sf_open(path.c_str(), SFM_WRITE, &info);
    const auto count = static_cast<sf_count_t>(words.size());
    floats ? sf_write_raw(file, words.data(), 4 * count) : sf_write_int(file, words.data(), count);
    sf_close(file);
    return path;
}

} // namespace

TEST(AudioFileDecoder, RoundsAndClipsTo16Bits)
{
    const std::tuple<int, int, Samples> rows[] = {{kWav, 1, kCut},
                                                  {kFlac, 2, kRounded},
                                                  {SF_FORMAT_WAV | SF_FORMAT_FLOAT, 2, kClipped},
                                                  {kWavPack, 1, kRounded},
                                                  {kFloatWavPack, 2, kClipped}};
    for (const auto& [format, channels, expected] : rows) {
        const auto path = write(format, channels, expected == kClipped ? kFloats : kWords);
        for (const Pcm& pcm : {decodeAudioFile(path), decodeAudio(readFile(path))}) {
            EXPECT_EQ(pcm.samples, expected) << format;
            EXPECT_EQ(pcm.channels, channels) << format;
            EXPECT_EQ(pcm.rate, 44100.0) << format;
        }
    }
    auto file = readFile(write(kFlac, 1, kWords));
    std::fill_n(file.begin() + 22, 4, std::byte{0x7f}); // frames, in the first metadata block
    EXPECT_LE(decodeAudio(file).samples.capacity(), 8 * file.size()) << "the size of the sound";
}

TEST(AudioFileDecoder, RefusesWhatIsNoSound)
{
    const std::tuple<int, int, std::size_t, const char*> rows[] = {{kWav, 1, 0, "is no sound file"},
                                                                   {kWav, 1, 44, "holds no sound"},
                                                                   {kWav, 3, 999, "has 3 channels"},
                                                                   {kWavPack, 1, 20, "WavPack"}};
    for (const auto& [format, channels, size, why] : rows) {
        auto file = readFile(write(format, channels, Words(9)));
        file.resize(std::min(size, file.size()));
        EXPECT_THAT([&] { decodeAudio(file); },
                    testing::ThrowsMessage<FormatError>(testing::HasSubstr(why)));
    }
    EXPECT_THROW(decodeAudioFile("/nowhere/sound.wav"), FormatError);
}

} // namespace velmora
