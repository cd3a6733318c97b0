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

using Context = std::unique_ptr<WavpackContext, decltype(&WavpackCloseFile)>;

/// Returns null and the reason if the file cannot be opened.
Context open(FileImage& file, int flags, std::string& error)
{
    static WavpackStreamReader64 reader = memoryReader(); // the context keeps a pointer to it
    std::array<char, 128> text{};                         // libwavpack requires 80
    Context context(WavpackOpenFileInputEx64(&reader, &file, nullptr, text.data(), flags, 0),
                    WavpackCloseFile);
    error = text.data();
    return context;
}

void appendWrapper(WavpackContext* context, std::vector<std::byte>& bytes)
{
    const auto* data = reinterpret_cast<const std::byte*>(WavpackGetWrapperData(context));
    if (data != nullptr)
        bytes.insert(bytes.end(), data, data + WavpackGetWrapperBytes(context));
    WavpackFreeWrapper(context);
}

bool hasId(std::span<const std::byte> bytes, std::string_view id)
{
    return bytes.size() >= id.size() && std::memcmp(bytes.data(), id.data(), id.size()) == 0;
}

/// Writes the size of a chunk, which stands behind its identifier.
void setSize(std::span<std::byte> chunk, std::size_t size)
{
    for (std::size_t i = 0; i < 4; ++i)
        chunk[4 + i] = static_cast<std::byte>(size >> 8 * i & 0xFF);
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
    return hasId(start, "wvpk");
}

Pcm decodeWavPack(std::span<const std::byte> bytes, const std::string& name,
                  const DecodingOptions& options)
{
    FileImage file(bytes);
    std::string error;
    const Context context = open(file, OPEN_NORMALIZE, error);
    if (!context)
        throw FormatError("is a damaged WavPack file (" + error + ")");

    const int channels = WavpackGetNumChannels(context.get());
    const Words words{(WavpackGetMode(context.get()) & MODE_FLOAT) != 0,
                      WavpackGetBytesPerSample(context.get())};
    PcmBuilder builder(name, channels, WavpackGetSampleRate(context.get()),
                       WavpackGetNumSamples64(context.get()), bytes.size(), words.precision(),
                       options);
    std::vector<std::int32_t> block(kUnpackedFrames * static_cast<std::size_t>(channels));
    while (const std::uint32_t frames =
               WavpackUnpackSamples(context.get(), block.data(), kUnpackedFrames))
        add(builder, std::span(block).first(frames * static_cast<std::size_t>(channels)), words);
    if (const int errors = WavpackGetNumErrors(context.get()))
        builder.readError(errors);
    return builder.take();
}

std::vector<std::byte> wavPackRiff(std::span<const std::byte> bytes)
{
    constexpr std::size_t kRiffHeader = 12;
    constexpr std::size_t kChunkHeader = 8;
    FileImage file(bytes);
    std::string error;
    const Context context = open(file, OPEN_WRAPPER, error);
    std::vector<std::byte> riff;
    if (!context)
        return riff;
    appendWrapper(context.get(), riff);
    // The header ends with that of the "data" chunk, whose samples come next.
    if (riff.size() < kRiffHeader + kChunkHeader || !hasId(riff, "RIFF") ||
        !hasId(std::span(riff).last(kChunkHeader), "data"))
        return {};
    const bool isOdd = (riff[riff.size() - 4] & std::byte{1}) != std::byte{0};
    setSize(std::span(riff).last(kChunkHeader), 0);
    const std::size_t end = riff.size();
    WavpackSeekTrailingWrapper(context.get());
    appendWrapper(context.get(), riff);
    if (isOdd && riff.size() > end && riff[end] == std::byte{0})
        riff.erase(riff.begin() + static_cast<std::ptrdiff_t>(end)); // the pad byte of the samples
    setSize(riff, riff.size() - kChunkHeader);
    return riff;
}

} // namespace velmora
