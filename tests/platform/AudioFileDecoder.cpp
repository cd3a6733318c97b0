#include "platform/AudioFileDecoder.h"

#include "base/File.h"
#include "base/FormatError.h"
#include "base/Log.h"
#include "support/WavPackFile.h"

#include <gmock/gmock.h>
#include <sndfile.h>
#include <spdlog/sinks/ostream_sink.h>

#include <algorithm>
#include <bit>
#include <fstream>
#include <limits>
#include <sstream>

namespace {

/// Samples of 32 bits: silence, both ends, and either side of where rounding to 16 bits turns.
const std::vector<std::int32_t> kSamples = {
    0, INT32_MAX, INT32_MIN, 0x12347fff, 0x12348000, -0x12348000, -0x12348100, 0x01000000, -1, 256};

/// What is to come of a sample that a file keeps in so many bits.
std::int16_t expected(std::int32_t sample, int bits)
{
    const std::int64_t kept = sample & -(std::int64_t{1} << (32 - bits));
    return static_cast<std::int16_t>(std::min<std::int64_t>((kept + 0x8000) >> 16, INT16_MAX));
}

std::vector<std::int16_t> expected(int bits)
{
    std::vector<std::int16_t> result;
    std::ranges::transform(kSamples, std::back_inserter(result),
                           [&](std::int32_t sample) { return expected(sample, bits); });
    return result;
}

class AudioFileDecoderTest : public testing::Test {
protected:
    AudioFileDecoderTest()
    {
        std::filesystem::create_directories(folder_);
        logger("platform").sinks().push_back(log_);
    }
    ~AudioFileDecoderTest() override
    {
        logger("platform").sinks().pop_back();
        std::filesystem::remove_all(folder_);
    }

    /// Writes a file, its samples as they stand or as floats of full scale 1.
    template <class Sample>
    std::filesystem::path write(int format, int channels, const std::vector<Sample>& samples)
    {
        auto path = folder_ / "sound";
        SF_INFO info{};
        info.samplerate = 44100;
        info.channels = channels;
        info.format = format;
        SNDFILE* file = sf_open(path.c_str(), SFM_WRITE, &info);
        EXPECT_NE(file, nullptr) << sf_strerror(nullptr);
        const auto count = static_cast<sf_count_t>(samples.size());
        if constexpr (std::is_same_v<Sample, float>)
            sf_write_float(file, samples.data(), count);
        else
            sf_write_int(file, samples.data(), count);
        sf_close(file);
        return path;
    }

    std::filesystem::path folder_ =
        std::filesystem::path(testing::TempDir()) / ("decoder" + std::to_string(getpid()));
    std::ostringstream logged_;
    std::shared_ptr<spdlog::sinks::ostream_sink_st> log_ =
        std::make_shared<spdlog::sinks::ostream_sink_st>(logged_);
};

TEST_F(AudioFileDecoderTest, RoundsWholeNumbersTo16Bits)
{
    const struct {
        const char* name;
        int format;
        int bits;
    } rows[] = {
        {"WAV 8", SF_FORMAT_WAV | SF_FORMAT_PCM_U8, 8},
        {"WAV 16", SF_FORMAT_WAV | SF_FORMAT_PCM_16, 16},
        {"WAV 24", SF_FORMAT_WAV | SF_FORMAT_PCM_24, 24},
        {"WAV 32", SF_FORMAT_WAV | SF_FORMAT_PCM_32, 32},
        {"AIFF 24", SF_FORMAT_AIFF | SF_FORMAT_PCM_24, 24},
        {"FLAC 16", SF_FORMAT_FLAC | SF_FORMAT_PCM_16, 16},
        {"FLAC 24", SF_FORMAT_FLAC | SF_FORMAT_PCM_24, 24},
    };
    for (const auto& row : rows) {
        for (const int channels : {1, 2}) {
            const auto path = write(row.format, channels, kSamples);
            for (const Pcm& pcm : {decodeAudioFile(path), decodeAudio(readFile(path))}) {
                EXPECT_EQ(pcm.samples, expected(row.bits)) << row.name;
                EXPECT_EQ(pcm.channels, channels) << row.name;
                EXPECT_EQ(pcm.rate, 44100.0) << row.name;
            }
        }
    }
}

TEST_F(AudioFileDecoderTest, ClipsFloats)
{
    const std::vector<float> floats = {0.0F, 0.5F,   -0.5F,        1.0F,         -1.0F,
                                       7.0F, -1e30F, 1.4F / 32768, std::nanf("")};
    const std::vector<std::int16_t> clipped = {0,     16384,  -16384, 32767, -32768,
                                               32767, -32768, 1,      0};
    EXPECT_EQ(decodeAudioFile(write(SF_FORMAT_WAV | SF_FORMAT_FLOAT, 1, floats)).samples, clipped);
    EXPECT_EQ(decodeAudioFile(write(SF_FORMAT_WAV | SF_FORMAT_DOUBLE, 1, floats)).samples, clipped);

    std::vector<std::int32_t> bits;
    std::ranges::transform(floats, std::back_inserter(bits),
                           [](float value) { return std::bit_cast<std::int32_t>(value); });
    EXPECT_EQ(decodeAudio(wavPackFile(bits, 1, 4, true)).samples, clipped) << "WavPack";

    const std::vector<float> tone(20000, 0.25F);
    const Pcm ogg = decodeAudioFile(write(SF_FORMAT_OGG | SF_FORMAT_VORBIS, 2, tone));
    ASSERT_EQ(ogg.samples.size(), tone.size());
    EXPECT_NEAR(ogg.samples[10000], 8192, 200);
}

TEST_F(AudioFileDecoderTest, KnowsWavPackByItsMagic)
{
    for (const int bytes : {1, 2, 3, 4}) {
        std::vector<std::int32_t> samples = kSamples;
        for (std::int32_t& sample : samples)
            sample >>= 32 - 8 * bytes;
        const auto file = wavPackFile(samples, 2, bytes);
        const auto path = folder_ / "pipe.wav";
        std::ofstream(path, std::ios::binary)
            .write(reinterpret_cast<const char*>(file.data()),
                   static_cast<std::streamsize>(file.size()));
        const Pcm pcm = decodeAudioFile(path);
        EXPECT_EQ(pcm.samples, expected(8 * bytes)) << bytes << " bytes";
        EXPECT_EQ(pcm.channels, 2);
        EXPECT_EQ(pcm.rate, 44100.0);
    }
}

TEST_F(AudioFileDecoderTest, RefusesWhatIsNoSound)
{
    const std::vector<std::byte> text(100, std::byte{'x'});
    const auto empty = readFile(write<float>(SF_FORMAT_WAV | SF_FORMAT_PCM_16, 1, {}));
    auto cutWavPack = wavPackFile(kSamples, 1, 2);
    cutWavPack.resize(20);
    const struct {
        const char* name;
        std::span<const std::byte> file;
    } rows[] = {{"nothing", {}},
                {"a text", text},
                {"a header", std::span(empty).first(30)},
                {"no frames", empty},
                {"WavPack, cut", cutWavPack}};
    for (const auto& row : rows)
        EXPECT_THROW(decodeAudio(row.file), FormatError) << row.name;
    EXPECT_THROW(decodeAudioFile(folder_), FormatError) << "a folder";
    try {
        decodeAudioFile(folder_ / "missing");
        FAIL();
    } catch (const FormatError& error) {
        EXPECT_STREQ(error.what(), "cannot be read (No such file or directory)");
    }
    EXPECT_THAT(logged_.str(), testing::HasSubstr("ERROR : ExtAudioFileOpenURL, 2\n"));
}

TEST_F(AudioFileDecoderTest, RefusesMoreThanTwoChannels)
{
    const std::string message =
        "MyGetOpenALAudioData - Unsupported Format, channel count is greater than stereo";
    EXPECT_THROW(decodeAudioFile(write(SF_FORMAT_WAV | SF_FORMAT_PCM_16, 3, std::vector<float>(9))),
                 FormatError);
    EXPECT_THAT(logged_.str(), testing::HasSubstr(message));
    logged_.str("");
    EXPECT_THROW(decodeAudio(wavPackFile(std::vector<std::int32_t>(9), 3, 2)), FormatError);
    EXPECT_THAT(logged_.str(), testing::HasSubstr(message));
}

TEST_F(AudioFileDecoderTest, TakesTheSizeFromTheSoundAndNotFromItsHeader)
{
    auto file = readFile(write(SF_FORMAT_FLAC | SF_FORMAT_PCM_16, 1, kSamples));
    std::fill_n(file.begin() + 22, 4, std::byte{0x7f}); // frames, in the first metadata block
    const Pcm pcm = decodeAudio(file);
    EXPECT_EQ(pcm.samples, expected(16));
    EXPECT_LE(pcm.samples.capacity(), 8 * file.size());
}

} // namespace
