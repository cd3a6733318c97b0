#include "platform/AudioFileDecoder.h"

#include "base/File.h"
#include "base/FormatError.h"
#include "base/Log.h"
#include "support/OrganFolder.h"

#include <gmock/gmock.h>
#include <sndfile.h>
#include <spdlog/sinks/ostream_sink.h>
#include <wavpack/wavpack.h>

#include <sstream>

namespace {

using Words = std::vector<std::int32_t>;

constexpr int kWav = SF_FORMAT_WAV | SF_FORMAT_PCM_16;
constexpr int kWavPack = 0; ///< In place of a format of libsndfile.
constexpr int kFloats = 0;  ///< In place of a number of bits.

/// Silence, both ends, and either side of where rounding to 16 bits turns.
const Words kSamples = {0, INT32_MAX, INT32_MIN, 0x12347fff, 0x12348000, -0x12348100, -1, 256};

/// The bits of 0.5, -0.5, 1, -1, 8 and no number.
const Words kFloatBits = {0x3f000000, -0x41000000, 0x3f800000, -0x40800000, 0x41000000, 0x7fc00000};

/// What is to come of samples that a file keeps in so many bits.
std::vector<std::int16_t> expected(int bits)
{
    if (bits == kFloats)
        return {16384, -16384, 32767, -32768, 32767, 0};
    std::vector<std::int16_t> result;
    for (const std::int32_t sample : kSamples) {
        const double kept = sample >> (32 - bits) << (32 - bits);
        result.push_back(
            static_cast<std::int16_t>(std::min(std::floor(kept / 65536 + 0.5), 32767.0)));
    }
    return result;
}

std::string wavPack(int bits, int channels, Words samples)
{
    std::string file;
    const auto append = [](void* id, void* data, std::int32_t count) {
        static_cast<std::string*>(id)->append(static_cast<char*>(data),
                                              static_cast<std::size_t>(count));
        return 1;
    };
    WavpackConfig config{};
    config.bits_per_sample = bits == kFloats ? 32 : bits;
    config.bytes_per_sample = config.bits_per_sample / 8;
    config.float_norm_exp = bits == kFloats ? 127 : 0;
    config.num_channels = channels;
    config.sample_rate = 44100;
    for (std::int32_t& sample : samples)
        sample >>= 32 - config.bits_per_sample;
    const auto frames = static_cast<unsigned>(samples.size()) / static_cast<unsigned>(channels);
    WavpackContext* context = WavpackOpenFileOutput(append, &file, nullptr);
    WavpackSetConfiguration64(context, &config, frames, nullptr);
    WavpackPackInit(context);
    WavpackPackSamples(context, samples.data(), frames);
    WavpackFlushSamples(context);
    WavpackCloseFile(context);
    return file;
}

class AudioFileDecoderTest : public testing::Test {
protected:
    /// Writes samples of 32 bits, or the bits of floats, to a file of 44100 Hz.
    std::filesystem::path write(int format, int bits, int channels, const Words& samples)
    {
        auto path = folder_.path() / "sound.wav";
        if (format == kWavPack)
            return folder_.write("sound.wav", wavPack(bits, channels, samples));
        SF_INFO info{0, 44100, channels, format, 0, 0};
        const auto count = static_cast<sf_count_t>(samples.size());
        SNDFILE* file = sf_open(path.c_str(), SFM_WRITE, &info);
        bits == kFloats ? sf_write_raw(file, samples.data(), 4 * count)
                        : sf_write_int(file, samples.data(), count);
        sf_close(file);
        return path;
    }

    OrganFolder folder_;
};

TEST_F(AudioFileDecoderTest, RoundsAndClipsTo16Bits)
{
    const std::pair<int, int> rows[] = {{SF_FORMAT_WAV | SF_FORMAT_PCM_U8, 8},
                                        {kWav, 16},
                                        {SF_FORMAT_WAV | SF_FORMAT_FLOAT, kFloats},
                                        {SF_FORMAT_AIFF | SF_FORMAT_PCM_32, 32},
                                        {SF_FORMAT_FLAC | SF_FORMAT_PCM_24, 24},
                                        {kWavPack, 24},
                                        {kWavPack, 32},
                                        {kWavPack, kFloats}};
    for (const auto& [format, bits] : rows) {
        SCOPED_TRACE(fmt::format("format {:x} of {} bits", format, bits));
        for (const int channels : {1, 2}) {
            const Words& samples = bits == kFloats ? kFloatBits : kSamples;
            const auto path = write(format, bits, channels, samples);
            for (const Pcm& pcm : {decodeAudioFile(path), decodeAudio(readFile(path))}) {
                EXPECT_EQ(pcm.samples, expected(bits));
                EXPECT_EQ(pcm.channels, channels);
                EXPECT_EQ(pcm.rate, 44100.0);
            }
        }
    }
    const auto ogg = write(SF_FORMAT_OGG | SF_FORMAT_VORBIS, 16, 1, Words(20000, 1 << 29));
    EXPECT_NEAR(decodeAudioFile(ogg).samples.at(10000), 8192, 200);

    auto file = readFile(write(SF_FORMAT_FLAC | SF_FORMAT_PCM_16, 16, 1, kSamples));
    std::fill_n(file.begin() + 22, 4, std::byte{0x7f}); // frames, in the first metadata block
    const Pcm pcm = decodeAudio(file);
    EXPECT_EQ(pcm.samples, expected(16));
    EXPECT_LE(pcm.samples.capacity(), 8 * file.size()) << "the size of the sound";
}

TEST_F(AudioFileDecoderTest, RefusesWhatIsNoSound)
{
    const struct {
        int format, channels;
        std::size_t samples, size; ///< And how much of the file is kept.
        std::string why, log;
    } rows[] = {{kWav, 1, 0, 0, "is no sound file", "ERROR : ExtAudioFileWrapAudioFileID, "},
                {kWav, 1, 0, 30, "", ""},
                {kWav, 1, 0, 999, "holds no sound", ""},
                {kWavPack, 1, 9, 20, "WavPack", ""},
                {kWav, 3, 9, 999, "has 3 channels", "channel count is greater than stereo"},
                {kWavPack, 3, 9, 999, "has 3 channels", "channel count is greater than stereo"}};
    std::ostringstream logged;
    const auto sink = std::make_shared<spdlog::sinks::ostream_sink_st>(logged);
    logger("platform").sinks().push_back(sink);
    const auto expectRefusal = [&](auto&& decode, const std::string& why, const std::string& log) {
        logged.str("");
        EXPECT_THAT(decode, testing::ThrowsMessage<FormatError>(testing::HasSubstr(why))) << why;
        EXPECT_THAT(logged.str(), testing::HasSubstr(log));
    };
    for (const auto& row : rows) {
        auto file = readFile(write(row.format, 16, row.channels, Words(row.samples)));
        file.resize(std::min(row.size, file.size()));
        expectRefusal([&] { decodeAudio(file); }, row.why, row.log);
    }
    expectRefusal([&] { decodeAudioFile(folder_.path() / "missing"); },
                  "cannot be read (No such file or directory)", "ERROR : ExtAudioFileOpenURL, 2\n");
    logger("platform").sinks().pop_back();
}

} // namespace
