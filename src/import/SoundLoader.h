#pragma once

#include "audio/DecodingOptions.h"
#include "audio/Pcm.h"
#include "import/ParallelLoader.h"

#include <filesystem>
#include <thread>
#include <vector>

namespace velmora {

/// Decodes sound files on several threads and hands them out in order. `next` throws FormatError if
/// the file cannot be decoded, and std::bad_alloc.
class SoundLoader : public ParallelLoader<Pcm> {
public:
    /// Starts decoding.
    SoundLoader(std::vector<std::filesystem::path> files, const DecodingOptions& options,
                unsigned threads = std::thread::hardware_concurrency());
};

} // namespace velmora
