// Decodes the input as a sound file. The result is a FormatError or a mono or stereo sound.

#include "audio/AudioFileDecoder.h"
#include "base/FormatError.h"
#include "base/Log.h"
#include "require.h"

namespace velmora {

/// libsndfile leaks memory of its decoders if a file is damaged.
// NOLINTNEXTLINE(bugprone-reserved-identifier): the hook of the sanitizer
extern "C" const char* __lsan_default_suppressions()
{
    return "leak:libsndfile.so\nleak:libvorbis.so\nleak:libFLAC.so\nleak:libogg.so\n";
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    setLogLevel(spdlog::level::off);
    try {
        const Pcm pcm = decodeAudio(std::as_bytes(std::span(data, size)));
        require(pcm.channels == 1 || pcm.channels == 2);
        require(pcm.rate > 0.0 && pcm.size() > 0);
        require(pcm.size() % static_cast<std::size_t>(pcm.channels) == 0);
    } catch (const FormatError&) {
        return 0;
    }
    return 0;
}

} // namespace velmora
