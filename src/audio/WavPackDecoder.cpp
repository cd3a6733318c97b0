#include "audio/WavPackDecoder.h"

#include "audio/FileImage.h"
#include "audio/PcmBuilder.h"
#include "base/FormatError.h"

#include <wavpack/wavpack.h>

#include <array>
#include <bit>
#include <cmath>
#include <memory>
#include <string_view>
#include <vector>

namespace velmora {

namespace {

constexpr std::uint32_t kUnpackedFrames = 16384;

FileImage& image(void* id)
{
    return *static_cast<FileImage*>(id);
}

/// Returns the callbacks through which libwavpack reads a FileImage.
WavpackStreamReader64 memoryReader()
{
    WavpackStreamReader64 reader{};
    reader.read_bytes = [](void* id, void* data, std::int32_t count) {
        return static_cast<std::int32_t>(image(id).read(data, count));
    };
    reader.get_pos = [](void* id) { return image(id).position(); };
    reader.set_pos_abs = [](void* id, std::int64_t position) {
        return image(id).seek(position, SEEK_SET) ? 0 : -1;
    };
    reader.set_pos_rel = [](void* id, std::int64_t delta, int whence) {
        return image(id).seek(delta, whence) ? 0 : -1;
    };
    reader.push_back_byte = [](void* id, int byte) {
        return image(id).seek(-1, SEEK_CUR) ? byte : EOF;
    };
    reader.get_length = [](void* id) { return image(id).length(); };
    reader.can_seek = [](void* /*id*/) { return 1; };
    return reader;
}

/// How libwavpack returns samples: integers in the low bytes of each word, or the bits of floats
/// with a full scale of 1.
struct Words {
    bool areFloats;
    int bytes;

    PcmBuilder::Precision precision() const
    {
        return areFloats || bytes > 2 ? PcmBuilder::Precision::Float
                                      : PcmBuilder::Precision::Bits16;
    }

    float floatOf(std::int32_t word) const
    {
        return areFloats ? std::bit_cast<float>(word)
                         : std::ldexp(static_cast<float>(word), 1 - 8 * bytes);
    }
};

void add(PcmBuilder& builder, std::span<const std::int32_t> samples, Words words)
{
    if (words.precision() == PcmBuilder::Precision::Float) {
        std::vector<float> floats(samples.size());
        std::ranges::transform(samples, floats.begin(),
                               [&](std::int32_t word) { return words.floatOf(word); });
        builder.add(floats);
        return;
    }
    std::vector<std::int16_t> narrow(samples.size());
    std::ranges::transform(samples, narrow.begin(), [&](std::int32_t word) {
        return static_cast<std::int16_t>(word * (1 << (16 - 8 * words.bytes)));
    });
    builder.add(narrow);
}

} // namespace

bool isWavPack(std::span<const std::byte> start)
{
    constexpr std::string_view kMagic = "wvpk";
    return start.size() >= kMagic.size() &&
           std::memcmp(start.data(), kMagic.data(), kMagic.size()) == 0;
}

Pcm decodeWavPack(std::span<const std::byte> bytes, const std::string& name)
{
    FileImage file(bytes);
    WavpackStreamReader64 reader = memoryReader();
    std::array<char, 128> error{}; // libwavpack requires 80
    const std::unique_ptr<WavpackContext, decltype(&WavpackCloseFile)> context(
        WavpackOpenFileInputEx64(&reader, &file, nullptr, error.data(), OPEN_NORMALIZE, 0),
        WavpackCloseFile);
    if (!context)
        throw FormatError(std::string("is a damaged WavPack file (") + error.data() + ")");

    const int channels = WavpackGetNumChannels(context.get());
    const Words words{(WavpackGetMode(context.get()) & MODE_FLOAT) != 0,
                      WavpackGetBytesPerSample(context.get())};
    PcmBuilder builder(name, channels, WavpackGetSampleRate(context.get()),
                       WavpackGetNumSamples64(context.get()), bytes.size(), words.precision());
    std::vector<std::int32_t> block(kUnpackedFrames * static_cast<std::size_t>(channels));
    while (const std::uint32_t frames =
               WavpackUnpackSamples(context.get(), block.data(), kUnpackedFrames))
        add(builder, std::span(block).first(frames * static_cast<std::size_t>(channels)), words);
    if (const int errors = WavpackGetNumErrors(context.get()))
        builder.logReadError(errors);
    return builder.take();
}

} // namespace velmora
