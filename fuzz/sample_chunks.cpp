// Reads the chunks of the input as those of a sample file, and prepares a sound with them.

#include "import/sampleChunks.h"

#include "base/FormatError.h"
#include "require.h"
#include "sound/PipeSound.h"

namespace velmora {

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    constexpr std::size_t kFrames = 4000;
    SampleChunks chunks;
    try {
        chunks = readSampleChunks(std::as_bytes(std::span(data, size)));
    } catch (const FormatError&) {
        return 0;
    }
    PipeRecording recording{{std::vector<std::int16_t>(2 * kFrames), 2, 48'000.0}, 440.0};
    for (std::size_t i = 0; i < size && i < 2 * kFrames; ++i)
        recording.pcm.samples[i] = static_cast<std::int16_t>(data[i] << 8U);
    for (const auto& loop : chunks.loops) {
        require(loop.begin < loop.end);
        recording.loops.push_back({loop.begin, loop.end});
    }
    recording.cue = chunks.cue;
    const PipeSound sound = makePipeSound(std::move(recording));
    require(!sound.loop ||
            (sound.loop->begin < sound.loop->end && sound.loop->end == sound.attack.size() / 2));
    require(sound.attack.size() <= 2 * kFrames && sound.release.size() <= 2 * kFrames);
    return 0;
}

} // namespace velmora
