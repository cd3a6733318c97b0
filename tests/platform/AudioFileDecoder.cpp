#include "platform/AudioFileDecoder.h"

#include "base/File.h"
#include "base/FormatError.h"
#include "base/Log.h"
#include "support/OrganFolder.h"
#include "support/WavPackFile.h"

#include <gmock/gmock.h>
#include <sndfile.h>
#include <spdlog/sinks/ostream_sink.h>

#include <algorithm>
#include <bit>
#include <sstream>

namespace {

using Words = std::vector<std::int32_t>;

/// Samples of 32 bits: silence, both ends, and either side of where rounding to 16 bits turns.
const Words kSamples = {0,           INT32_MAX,  INT32_MIN, 0x12347fff, 0x12348000,
                        -0x12348100, 0x01000000, -1,        256,        0};

/// What is to come of samples that a file keeps in so many bits.
std::vector<std::int16_t> expected(int bits)
{
    std::vector<std::int16_t> result;
    for (const std::int32_t sample : kSamples) {
        const std::int64_t kept = sample & -(std::int64_t{1} << (32 - bits));
        result.push_back(
            static_cast<std::int16_t>(std::min<std::int64_t>((kept + 0x8000) >> 16, INT16_MAX)));
    }
    return result;
}

class AudioFileDecoderTest : public testing::Test {
protected:
    AudioFileDecoderTest() { logger("platform").sinks().push_back(log_); }
    ~AudioFileDecoderTest() override { logger("platform").sinks().pop_back(); }

    /// Writes a file; samples are words as they stand or floats of full scale 1.
    template <class Sample>
    std::filesystem::path write(int format, int channels, const std::vector<Sample>& samples)
    {
        auto path = folder_.path() / "sound";
        SF_INFO info{};
        info.samplerate = 44100;
        info.channels = channels;
        info.format = format;
        SNDFILE* file = sf_open(path.c_str(), SFM_WRITE, &info);
        const auto count = static_cast<sf_count_t>(samples.size());
        if constexpr (std::is_same_v<Sample, float>)
            sf_write_float(file, samples.data(), count);
        else
            sf_write_int(file, samples.data(), count);
        sf_close(file);
        return path;
    }

    OrganFolder folder_;
    std::ostringstream logged_;
    std::shared_ptr<spdlog::sinks::ostream_sink_st> log_ =
        std::make_shared<spdlog::sinks::ostream_sink_st>(logged_);
};

TEST_F(AudioFileDecoderTest, RoundsWholeNumbersTo16Bits)
{
    const std::pair<int, int> rows[] = {
        {SF_FORMAT_WAV | SF_FORMAT_PCM_U8, 8},   {SF_FORMAT_WAV | SF_FORMAT_PCM_16, 16},
        {SF_FORMAT_WAV | SF_FORMAT_PCM_24, 24},  {SF_FORMAT_WAV | SF_FORMAT_PCM_32, 32},
        {SF_FORMAT_AIFF | SF_FORMAT_PCM_24, 24}, {SF_FORMAT_FLAC | SF_FORMAT_PCM_16, 16},
        {SF_FORMAT_FLAC | SF_FORMAT_PCM_24, 24}};
    for (const auto& [format, bits] : rows) {
        for (const int channels : {1, 2}) {
            const auto path = write(format, channels, kSamples);
            for (const Pcm& pcm : {decodeAudioFile(path), decodeAudio(readFile(path))}) {
                EXPECT_EQ(pcm.samples, expected(bits)) << std::hex << format;
                EXPECT_EQ(pcm.channels, channels);
                EXPECT_EQ(pcm.rate, 44100.0);
            }
        }
    }
    for (const int bytes : {1, 2, 3, 4}) {
        Words samples = kSamples;
        for (std::int32_t& sample : samples)
            sample >>= 32 - 8 * bytes;
        const auto file = wavPackFile(samples, 2, bytes);
        const auto path = folder_.write(
            "wavpack.wav", std::string(reinterpret_cast<const char*>(file.data()), file.size()));
        const Pcm pcm = decodeAudioFile(path);
        EXPECT_EQ(pcm.samples, expected(8 * bytes)) << "WavPack of " << bytes << " bytes";
        EXPECT_EQ(pcm.channels, 2);
        EXPECT_EQ(pcm.rate, 44100.0);
    }
}

TEST_F(AudioFileDecoderTest, ClipsFloats)
{
    const std::vector<float> floats = {0.5F, -0.5F, 1.0F, -1.0F, 7.0F, 1.4F / 32768, std::nanf("")};
    const std::vector<std::int16_t> clipped = {16384, -16384, 32767, -32768, 32767, 1, 0};
    Words bits;
    for (const float value : floats)
        bits.push_back(std::bit_cast<std::int32_t>(value));
    EXPECT_EQ(decodeAudioFile(write(SF_FORMAT_WAV | SF_FORMAT_FLOAT, 1, floats)).samples, clipped);
    EXPECT_EQ(decodeAudio(wavPackFile(bits, 1, 4, true)).samples, clipped) << "WavPack";

    const auto ogg = write(SF_FORMAT_OGG | SF_FORMAT_VORBIS, 1, std::vector<float>(20000, 0.25F));
    EXPECT_NEAR(decodeAudioFile(ogg).samples.at(10000), 8192, 200);
}

TEST_F(AudioFileDecoderTest, RefusesWhatIsNoSound)
{
    const auto empty = readFile(write<float>(SF_FORMAT_WAV | SF_FORMAT_PCM_16, 1, {}));
    const auto three = readFile(write(SF_FORMAT_WAV | SF_FORMAT_PCM_16, 3, Words(9)));
    const auto threeWavPack = wavPackFile(Words(9), 3, 2);
    const std::string text(100, 'x');
    const struct {
        std::span<const std::byte> file;
        std::string why, log;
    } rows[] = {
        {{}, "is no sound file", "ERROR : ExtAudioFileWrapAudioFileID, "},
        {std::as_bytes(std::span(text)), "is no sound file", "ERROR : ExtAudio"},
        {std::span(empty).first(30), "", ""},
        {empty, "holds no sound", ""},
        {std::span(threeWavPack).first(20), "WavPack", ""},
        {three, "has 3 channels", "MyGetOpenALAudioData - Unsupported Format, channel count is"},
        {threeWavPack, "has 3 channels", "channel count is greater than stereo"},
    };
    const auto refusal = [](auto&& decode) -> std::string {
        try {
            decode();
            return "decoded";
        } catch (const FormatError& error) {
            return error.what();
        }
    };
    for (const auto& row : rows) {
        logged_.str("");
        const std::string why = refusal([&] { decodeAudio(row.file); });
        EXPECT_THAT(why, testing::HasSubstr(row.why));
        EXPECT_NE(why, "decoded");
        EXPECT_THAT(logged_.str(), testing::HasSubstr(row.log));
    }
    EXPECT_EQ(refusal([&] { decodeAudioFile(folder_.path() / "missing"); }),
              "cannot be read (No such file or directory)");
    EXPECT_THAT(logged_.str(), testing::HasSubstr("ERROR : ExtAudioFileOpenURL, 2\n"));
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
