#include "audio/AudioFileDecoder.h"

#include "audio/DecodedCache.h"
#include "audio/PcmBuilder.h"
#include "audio/WavPackDecoder.h"
#include "base/File.h"
#include "base/FormatError.h"
#include "support/Log.h"
#include "support/OrganFolder.h"

#include <gmock/gmock.h>
#include <sndfile.h>
#include <wavpack/wavpack.h>

namespace velmora {

namespace {

using Words = std::vector<std::int32_t>;
using Samples = std::vector<std::int16_t>;
using Floats = std::vector<float>;

constexpr int kWav = SF_FORMAT_WAV | SF_FORMAT_PCM_16;
constexpr int kFlac = SF_FORMAT_FLAC | SF_FORMAT_PCM_24;
constexpr int kWavPack = SF_FORMAT_PCM_24,
              kFloatWavPack = SF_FORMAT_FLOAT; ///< Written with libwavpack.

/// The last of 24 bits.
constexpr float kBit = 0x1p-23F;

/// Silence, both extremes, and values that differ in the last of 24 bits.
const Words kWords = {0, INT32_MAX, INT32_MIN, 0x12347f00, 0x12348000, -0x12348100, -256, 256};
const Floats kWhole = {0.0F,          1.0F - kBit,    -1.0F, 0x12347fp-23F,
                       0x123480p-23F, -0x123481p-23F, -kBit, kBit};
const Samples kCut = {0, 32767, -32768, 0x1234, 0x1234, -0x1235, -1, 0};

/// The bits of 0.5, -0.5, 1, -1, 8 and NaN.
const Words kFloats = {0x3f000000, -0x41000000, 0x3f800000, -0x40800000, 0x41000000, 0x7fc00000};
const Floats kFinite = {0.5F, -0.5F, 1.0F, -1.0F, 8.0F, 0.0F};

/// Writes a WavPack file that keeps what stood before and behind the samples of another file.
std::string writeWavPack(const std::string& path, bool floats, int channels, Words words,
                         std::string before = "", std::string after = "")
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
    if (!before.empty())
        WavpackAddWrapper(context, before.data(), static_cast<unsigned>(before.size()));
    WavpackPackInit(context);
    WavpackPackSamples(context, words.data(), frames);
    WavpackFlushSamples(context);
    if (!after.empty())
        WavpackAddWrapper(context, after.data(), static_cast<unsigned>(after.size()));
    WavpackFlushSamples(context);
    WavpackCloseFile(context);
    return path;
}

/// Writes 32-bit samples, or the bits of floats, to a file of 44100 Hz.
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

TEST(AudioFileDecoder, KeepsSamplesWhole)
{
    const std::tuple<int, int, Samples, Floats> rows[] = {
        {kWav, 1, kCut, {}},
        {kFlac, 2, {}, kWhole},
        {SF_FORMAT_WAV | SF_FORMAT_FLOAT, 2, {}, kFinite},
        {kWavPack, 1, {}, kWhole},
        {kFloatWavPack, 2, {}, kFinite}};
    for (const auto& [format, channels, samples, floats] : rows) {
        const auto path = write(format, channels, floats == kFinite ? kFloats : kWords);
        for (const Pcm& pcm : {decodeAudioFile(path), decodeAudio(readFile(path))}) {
            EXPECT_EQ(pcm.samples, samples) << format;
            EXPECT_EQ(pcm.floats, floats) << format;
            EXPECT_EQ(pcm.channels, channels) << format;
            EXPECT_EQ(pcm.rate, 44100.0) << format;
        }
    }
    auto file = readFile(write(kFlac, 1, kWords));
    std::fill_n(file.begin() + 22, 4, std::byte{0x7f}); // the length in the first metadata block
    EXPECT_LE(decodeAudio(file).floats.capacity(), 8 * file.size())
        << "a false length reserves memory only in proportion to the file";
}

TEST(AudioFileDecoder, FindsTheRiffChunksThatWavPackKeeps)
{
    const std::string before = riff::chunk("fmt ", "0123456789abcdef") + riff::chunk("smpl", "s");
    const std::string after = riff::chunk("cue ", "cc");
    for (const std::string& pad : {std::string(), std::string(1, 0)}) {
        const std::string frames(1, static_cast<char>(3 * kWords.size() + pad.size()));
        const auto path = writeWavPack(
            (OrganFolder().path().string() + "x.wv"), false, 1, kWords,
            "RIFF\1\2\3\4WAVE" + before + "data" + frames + std::string(3, 0), pad + after);
        const auto riff = wavPackRiff(readFile(path));
        EXPECT_EQ(std::string(reinterpret_cast<const char*>(riff.data()), riff.size()),
                  riff::file("WAVE", before + riff::chunk("data", "") + after));
        EXPECT_EQ(decodeAudioFile(path).floats, kWhole);
        std::filesystem::remove(path);
    }
    auto cut = readFile(write(kWavPack, 1, kWords));
    EXPECT_FALSE(wavPackRiff(cut).empty());
    cut.resize(40);
    EXPECT_TRUE(wavPackRiff(cut).empty());
}

TEST(AudioFileDecoder, SaysAndLogsWhyASoundCannotBeDecoded)
{
    const auto failed = [](const std::string& what) {
        return "MyGetOpenALAudioData: ExtAudioFile" + what + " FAILED, Error = ";
    };
    const struct {
        int format, channels;
        std::size_t size; // the file is truncated to this size
        std::size_t at;
        std::string changed; // bytes to write at `at`
        std::string why, diagnostic;
    } rows[] = {
        {kWav, 1, 0, 0, "", "is not a sound file", "ERROR : ExtAudioFileWrapAudioFileID, "},
        {kWav, 1, 999, 20, "\x99", "is not a sound file", "ERROR : ExtAudioFileGetProperty, "},
        {kWav, 1, 44, 0, "fLaC" + std::string(40, 0), "is not a sound file",
         failed("SetProperty(kExtAudioFileProperty_ClientDataFormat)") + "18"},
        {kWav, 1, 44, 0, "", "has no samples", ""},
        {kWav, 3, 999, 0, "", "has 3 channels", "channel count is greater than stereo"},
        {kWavPack, 1, 20, 0, "", "WavPack", ""}};
    for (const auto& row : rows) {
        auto file = readFile(write(row.format, row.channels, Words(9)));
        file.resize(std::min(row.size, file.size()));
        std::ranges::copy(std::as_bytes(std::span(row.changed)),
                          file.begin() + static_cast<std::ptrdiff_t>(row.at));
        std::string why;
        const std::string log = logOf([&] {
            try {
                decodeAudio(file);
            } catch (const FormatError& error) {
                why = error.what();
            }
        });
        EXPECT_THAT(why, testing::HasSubstr(row.why));
        EXPECT_THAT(log, testing::HasSubstr(row.diagnostic)) << row.why;
        EXPECT_THAT(log, testing::HasSubstr("cannot decode an embedded sound: ")) << row.why;
    }
    EXPECT_THAT(
        logOf([] { PcmBuilder("unknown length", 1, 8000, -1, 9, PcmBuilder::Precision::Bits16); }),
        testing::HasSubstr(failed("GetProperty(kExtAudioFileProperty_FileLengthFrames)")));
    const std::string log = logOf([] { EXPECT_THROW(decodeAudioFile("/no.wav"), FormatError); });
    EXPECT_EQ(log, "audio: ERROR : ExtAudioFileOpenURL, 2\n"
                   "audio: cannot open /no.wav: No such file or directory\n");
}

TEST(AudioFileDecoder, RefusesDamagedFilesIfAsked)
{
    constexpr int kOgg = SF_FORMAT_OGG | SF_FORMAT_VORBIS;
    const std::string damaged = "is damaged or cut short";
    const struct {
        int format;
        bool isCut; // or else a byte in the middle is changed
        std::string why;
    } rows[] = {{kWav, true, "is cut short"}, {kFlac, true, damaged}, {kFlac, false, damaged},
                {kOgg, true, damaged},        {kOgg, false, damaged}, {kWavPack, true, damaged},
                {kWavPack, false, damaged}};
    Words noise(100'000);
    std::ranges::generate(noise, [value = 1U]() mutable {
        return static_cast<std::int32_t>((value = value * 1'664'525U + 1'013'904'223U) / 8);
    });
    for (const auto& row : rows) {
        auto file = readFile(write(row.format, 2, noise));
        const DecodingOptions refusing{.damage = Damage::Refused};
        EXPECT_EQ(decodeAudio(file, refusing).size(), noise.size()) << "undamaged";
        if (row.isCut)
            file.resize(file.size() * 2 / 3);
        else
            file[file.size() / 2] ^= std::byte{0x55};
        const auto what =
            row.why + (row.isCut ? ", cut " : ", changed ") + std::to_string(row.format);
        EXPECT_NO_THROW(decodeAudio(file)) << what << ": usually a shorter sound";
        try {
            decodeAudio(file, refusing);
            ADD_FAILURE() << what;
        } catch (const FormatError& error) {
            EXPECT_EQ(error.what(), row.why) << what;
        }
    }
}

TEST(AudioFileDecoder, SavesMemory)
{
    for (const int format : {kWav, kFlac, kWavPack}) {
        const std::string path = write(format, 2, {1 << 30, 1 << 28, -1 << 30, -1 << 29});
        const Pcm mono = decodeAudioFile(path, {.to16Bit = true, .toMono = true});
        EXPECT_EQ(mono.channels, 1);
        EXPECT_THAT(mono.samples, testing::ElementsAre(5 << 11, -3 << 12)) << format;
    }
    MemoryGuard full([] { return 16U; });
    DecodingOptions options{.memory = &full};
    EXPECT_THROW(decodeAudioFile(write(kFlac, 1, Words(5)), options), MemoryShortage);
    options.to16Bit = true;
    EXPECT_NO_THROW(decodeAudioFile(write(kFlac, 1, Words(5)), options));
}

TEST(DecodedCache, KeepsTheSamplesOfCompressedFiles)
{
    const OrganFolder folder;
    constexpr std::uint64_t kSize = 40 + 4 * 8; // of an entry with a header and eight floats
    const auto entries = [&] {
        const std::filesystem::directory_iterator all(folder.path());
        return std::vector<std::filesystem::directory_entry>(begin(all), end(all));
    };
    DecodedCache cache(folder.path(), 2 * kSize);
    const DecodingOptions options{.damage = Damage::Refused, .cache = &cache};
    const auto file = readFile(write(kFlac, 2, kWords));
    decodeAudio(readFile(write(kWav, 2, kWords)), options);
    EXPECT_TRUE(entries().empty()) << "reading it is fast already";
    EXPECT_EQ(decodeAudio(file, options).floats, kWhole);
    ASSERT_EQ(entries().size(), 1U);

    const auto found = cache.find(file, {}, *options.memory);
    ASSERT_TRUE(found);
    EXPECT_EQ(found->floats, kWhole);
    EXPECT_EQ(std::pair(found->channels, found->rate), std::pair(2, 44100.0));
    EXPECT_FALSE(cache.find(file, {.is16Bit = true}, *options.memory));

    const auto entry = entries().front().path();
    for (const std::size_t at : {std::size_t{3}, std::size_t{12}, std::size_t{20}, kSize - 1}) {
        const auto whole = readTextFile(entry);
        auto changed = whole;
        changed[at] ^= 1;
        for (const auto& damaged : {changed, whole.substr(0, at)}) {
            std::ofstream(entry, std::ios::binary) << damaged;
            EXPECT_FALSE(cache.find(file, {}, *options.memory)) << at;
            cache.trim();
            EXPECT_EQ(decodeAudio(file, options).floats, kWhole) << at;
        }
    }

    for (const int other : {1, 2}) {
        cache.trim();
        cache.find(file, {}, *options.memory); // used last
        decodeAudio(readFile(write(kFlac, 1, Words(8, other << 20))), options);
    }
    EXPECT_EQ(entries().size(), 3U);
    cache.trim();
    EXPECT_EQ(entries().size(), 2U);
    EXPECT_TRUE(std::filesystem::exists(entry)) << "what was used last is kept";
}

} // namespace velmora
