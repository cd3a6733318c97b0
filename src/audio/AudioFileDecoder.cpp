#include "audio/AudioFileDecoder.h"

#include "audio/FileImage.h"
#include "audio/PcmBuilder.h"
#include "audio/WavPackDecoder.h"
#include "base/File.h"
#include "base/FormatError.h"
#include "base/Log.h"

#include <fcntl.h>
#include <sndfile.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <memory>
#include <system_error>

namespace velmora {

namespace {

using SoundFile = std::unique_ptr<SNDFILE, int (*)(SNDFILE*)>;

constexpr sf_count_t kBlockFrames = 16384;

/// Decodes all of a file with one of libsndfile's reading functions.
template <class Sample> void decodeWith(sf_count_t (*read)(SNDFILE*, Sample*, sf_count_t),
                                        SNDFILE* file, int channels, PcmBuilder& builder)
{
    std::vector<Sample> block(static_cast<std::size_t>(kBlockFrames * channels));
    sf_count_t frames = 0;
    while ((frames = read(file, block.data(), kBlockFrames)) > 0)
        builder.add(
            std::span<const Sample>(block.data(), static_cast<std::size_t>(frames * channels)));
}

/// Decodes an opened file of `size` bytes, in the type of sample that loses nothing of its own.
Pcm decode(SNDFILE* file, const SF_INFO& info, std::size_t size)
{
    PcmBuilder builder(info.channels, info.samplerate, info.frames, size);
    switch (info.format & SF_FORMAT_SUBMASK) {
    case SF_FORMAT_PCM_24:
    case SF_FORMAT_PCM_32:
    case SF_FORMAT_ALAC_20:
    case SF_FORMAT_ALAC_24:
    case SF_FORMAT_ALAC_32:
        decodeWith(sf_readf_int, file, info.channels, builder);
        break;
    case SF_FORMAT_FLOAT:
    case SF_FORMAT_DOUBLE:
    case SF_FORMAT_VORBIS:
    case SF_FORMAT_OPUS:
    case SF_FORMAT_MPEG_LAYER_I:
    case SF_FORMAT_MPEG_LAYER_II:
    case SF_FORMAT_MPEG_LAYER_III:
        decodeWith(sf_readf_float, file, info.channels, builder);
        break;
    default:
        decodeWith(sf_readf_short, file, info.channels, builder);
    }
    return builder.take();
}

FormatError notSound()
{
    return FormatError("is no sound file that can be decoded");
}

/// An open file, closed with it.
class Descriptor {
public:
    explicit Descriptor(const std::filesystem::path& path)
        : descriptor_(open(path.c_str(), O_RDONLY | O_CLOEXEC))
    {
    }
    ~Descriptor()
    {
        if (descriptor_ >= 0)
            close(descriptor_);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    int get() const { return descriptor_; }

private:
    int descriptor_;
};

} // namespace

Pcm decodeAudioFile(const std::filesystem::path& path)
{
    const Descriptor descriptor(path);
    std::array<std::byte, 4> magic{};
    struct stat status {};
    if (descriptor.get() < 0 || fstat(descriptor.get(), &status) != 0 ||
        pread(descriptor.get(), magic.data(), magic.size(), 0) < 0) {
        const int error = errno;
        logger("platform").info("ERROR : ExtAudioFileOpenURL, {}", error);
        throw FormatError("cannot be read (" + std::generic_category().message(error) + ")");
    }
    if (isWavPack(magic))
        return decodeWavPack(readFile(path));

    SF_INFO info{};
    const SoundFile file(sf_open_fd(descriptor.get(), SFM_READ, &info, SF_FALSE), sf_close);
    if (!file) {
        logger("platform").info("ERROR : ExtAudioFileOpenURL, {}", sf_error(nullptr));
        throw notSound();
    }
    return decode(file.get(), info, static_cast<std::size_t>(status.st_size));
}

Pcm decodeAudio(std::span<const std::byte> image)
{
    if (isWavPack(image))
        return decodeWavPack(image);

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
    if (!file) {
        logger("platform").info("ERROR : ExtAudioFileWrapAudioFileID, {}", sf_error(nullptr));
        throw notSound();
    }
    return decode(file.get(), info, image.size());
}

} // namespace velmora
