#include "import/SoundLoader.h"

#include "audio/AudioFileDecoder.h"

#include <memory>

namespace velmora {

namespace {

std::uintmax_t sizeOf(const std::filesystem::path& file)
{
    std::error_code error;
    const std::uintmax_t size = std::filesystem::file_size(file, error);
    return error ? 0 : size;
}

ParallelLoader<Pcm>::Work decodingOf(std::vector<std::filesystem::path> files,
                                     const DecodingOptions& options)
{
    using Files = std::vector<std::filesystem::path>;
    const auto shared = std::make_shared<const Files>(std::move(files));
    return {shared->size(),
            [shared, options](std::size_t i) { return decodeAudioFile((*shared)[i], options); },
            [shared](std::size_t i) { return sizeOf((*shared)[i]); }};
}

} // namespace

SoundLoader::SoundLoader(std::vector<std::filesystem::path> files, const DecodingOptions& options,
                         unsigned threads)
    : ParallelLoader(decodingOf(std::move(files), options), threads)
{
}

} // namespace velmora
