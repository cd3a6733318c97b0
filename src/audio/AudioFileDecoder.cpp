#include "audio/AudioFileDecoder.h"

#include "audio/DecodedCache.h"
#include "audio/FileImage.h"
#include "audio/PcmBuilder.h"
#include "audio/WavPackDecoder.h"
#include "audio/wholeness.h"
#include "base/File.h"
#include "base/FormatError.h"
#include "base/Log.h"
#include "base/OpenFile.h"

#include <sndfile.h>

#include <algorithm>
#include <array>
#include <memory>
#include <string_view>
#include <system_error>

namespace velmora {

namespace {

using SoundFile = std::unique_ptr<SNDFILE, int (*)(SNDFILE*)>;

constexpr sf_count_t kBlockFrames = 16384;

/// libsndfile's status for a format that it recognises but cannot decode. <sndfile.h> has no name
/// for it.
constexpr int kUnimplemented = 18;

/// What the log calls a sound that has no file name.
constexpr const char* kEmbedded = "an embedded sound";

/// Decodes a whole file with one of libsndfile's reading functions.
template <class Sample> void decodeWith(sf_count_t (*read)(SNDFILE*, Sample*, sf_count_t),
                                        SNDFILE* file, int channels, PcmBuilder& builder)
{
    std::vector<Sample> block(static_cast<std::size_t>(kBlockFrames * channels));
    sf_count_t frames = 0;
    while ((frames = read(file, block.data(), kBlockFrames)) > 0)
        builder.add(
            std::span<const Sample>(block.data(), static_cast<std::size_t>(frames * channels)));
    if (const int status = sf_error(file))
        builder.readError(status);
}

/// Decodes an open file of `size` bytes. The sample type is the smallest that loses no precision;
/// lossy formats have none that 16 bits do not hold.
Pcm decode(SNDFILE* file, const SF_INFO& info, const std::string& name, std::size_t size,
           const DecodingOptions& options)
{
    using Precision = PcmBuilder::Precision;
    const auto decoded = [&](auto read, Precision precision) {
        PcmBuilder builder(name, info.channels, info.samplerate, info.frames, size, precision,
                           options);
        decodeWith(read, file, info.channels, builder);
        return builder.take();
    };
    switch (info.format & SF_FORMAT_SUBMASK) {
    case SF_FORMAT_PCM_24:
    case SF_FORMAT_PCM_32:
    case SF_FORMAT_ALAC_20:
    case SF_FORMAT_ALAC_24:
    case SF_FORMAT_ALAC_32:
    case SF_FORMAT_FLOAT:
    case SF_FORMAT_DOUBLE:
        return decoded(sf_readf_float, Precision::Float);
    case SF_FORMAT_VORBIS:
    case SF_FORMAT_OPUS:
    case SF_FORMAT_MPEG_LAYER_I:
    case SF_FORMAT_MPEG_LAYER_II:
    case SF_FORMAT_MPEG_LAYER_III:
        return decoded(sf_readf_float, Precision::Bits16);
    default:
        return decoded(sf_readf_short, Precision::Bits16);
    }
}

/// Logs the status of libsndfile after it failed to open a file, and returns the error to throw.
/// libsndfile opens a file and reads its format in one step; the status says which of them failed.
FormatError openError(const char* operation)
{
    // Diagnostics keep their texts: see docs/decisions.md, 125.
    const Logger log = logger("audio");
    const int status = sf_error(nullptr);
    if (status == SF_ERR_UNRECOGNISED_FORMAT || status == SF_ERR_SYSTEM)
        log.debug("ERROR : {}, {}", operation, status);
    else if (status == SF_ERR_UNSUPPORTED_ENCODING || status == kUnimplemented)
        log.debug("MyGetOpenALAudioData: ExtAudioFileSetProperty("
                  "kExtAudioFileProperty_ClientDataFormat) FAILED, Error = {}",
                  status);
    else
        log.debug("ERROR : ExtAudioFileGetProperty, {}", status);
    return FormatError("is not a sound file in a supported format");
}

/// Calls a decoder and logs any error with the name of the sound.
template <class Decoder> Pcm logErrors(const std::string& name, Decoder decoder)
try {
    return decoder();
} catch (const FormatError& error) {
    logger("audio").warn("cannot decode {}: {}", name, error.what());
    throw;
}

Pcm decodeOpenFile(const OpenFile& opened, const std::string& name, const DecodingOptions& options)
{
    SF_INFO info{};
    const SoundFile file(sf_open_fd(opened.descriptor(), SFM_READ, &info, SF_FALSE), sf_close);
    if (!file)
        throw openError("ExtAudioFileOpenURL");
    return decode(file.get(), info, name, static_cast<std::size_t>(opened.size()), options);
}

Pcm decodeImage(std::span<const std::byte> image, const std::string& name,
                const DecodingOptions& options)
{
    SF_VIRTUAL_IO callbacks{};
    callbacks.get_filelen = [](void* data) -> sf_count_t {
        return static_cast<FileImage*>(data)->length();
    };
    callbacks.seek = [](sf_count_t offset, int whence, void* data) -> sf_count_t {
        auto& read = *static_cast<FileImage*>(data);
        return read.seek(offset, whence) ? read.position() : -1;
    };
    callbacks.read = [](void* target, sf_count_t count, void* data) -> sf_count_t {
        return static_cast<FileImage*>(data)->read(target, count);
    };
    callbacks.tell = [](void* data) -> sf_count_t {
        return static_cast<FileImage*>(data)->position();
    };
    FileImage reader(image);
    SF_INFO info{};
    const SoundFile file(sf_open_virtual(&callbacks, SFM_READ, &info, &reader), sf_close);
    if (!file)
        throw openError("ExtAudioFileWrapAudioFileID");
    return decode(file.get(), info, name, image.size(), options);
}

/// True for the formats whose decoding takes time.
bool isCompressed(std::span<const std::byte> start)
{
    const auto begins = [start](std::string_view magic) {
        return std::ranges::equal(start.first(std::min(start.size(), magic.size())),
                                  std::as_bytes(std::span(magic)));
    };
    return begins("fLaC") || begins("OggS") || isWavPack(start);
}

/// Decodes a file, or takes its samples from the cache. What a damaged file gives is not cached,
/// since another time the damage may be refused.
Pcm decodeBytes(std::span<const std::byte> image, const std::string& name,
                const DecodingOptions& options)
{
    const bool mustBeWhole = options.damage == Damage::Refused;
    DecodedCache* cache = mustBeWhole && isCompressed(image) ? options.cache : nullptr;
    const DecodedCache::Form form{options.to16Bit, options.toMono};
    if (cache != nullptr)
        if (auto pcm = cache->find(image, form, *options.memory))
            return std::move(*pcm);
    if (mustBeWhole)
        checkWholeness(image);
    Pcm pcm =
        isWavPack(image) ? decodeWavPack(image, name, options) : decodeImage(image, name, options);
    if (cache != nullptr)
        cache->store(image, form, pcm);
    return pcm;
}

} // namespace

Pcm decodeAudioFile(const std::filesystem::path& path, const DecodingOptions& options)
try {
    const OpenFile file(path);
    std::array<std::byte, 4> magic{};
    file.read(0, magic);
    return logErrors(path.string(), [&] {
        return isWavPack(magic) || options.damage == Damage::Refused
                   ? decodeBytes(readFile(path), path.string(), options)
                   : decodeOpenFile(file, path.string(), options);
    });
} catch (const std::system_error& error) {
    const Logger log = logger("audio");
    // See docs/decisions.md, 125.
    log.debug("ERROR : ExtAudioFileOpenURL, {}", error.code().value());
    log.warn("cannot open {}: {}", path.string(), error.code().message());
    throw FormatError("cannot be read (" + error.code().message() + ")");
}

Pcm decodeAudio(std::span<const std::byte> image, const DecodingOptions& options)
{
    return logErrors(kEmbedded, [&] { return decodeBytes(image, kEmbedded, options); });
}

} // namespace velmora
