#include "import/sampleChunks.h"

#include "audio/WavPackDecoder.h"
#include "import/RIFF.h"

#include <algorithm>
#include <limits>

namespace velmora {

namespace {

struct SamplerHeader {
    std::uint32_t manufacturer;
    std::uint32_t product;
    std::uint32_t samplePeriod;
    std::uint32_t unityNote;
    std::uint32_t pitchFraction; ///< 2³² is a semitone.
    std::uint32_t smpteFormat;
    std::uint32_t smpteOffset;
    std::uint32_t loops;
    std::uint32_t extraBytes;
};

struct SamplerLoop {
    std::uint32_t id;
    std::uint32_t type; ///< 0 is forward.
    std::uint32_t begin;
    std::uint32_t last; ///< The last frame that is played.
    std::uint32_t fraction;
    std::uint32_t count;
};

struct CuePoint {
    std::uint32_t id;
    std::uint32_t position;
    std::uint32_t chunk;
    std::uint32_t chunkStart;
    std::uint32_t blockStart;
    std::uint32_t frame;
};

/// Reads up to `count` records from byte `at` of a chunk, as many as it really has.
template <class Record>
std::vector<Record> recordsAt(const RIFF::Chunk& chunk, std::size_t at, std::size_t count)
{
    std::vector<Record> records;
    Record record{};
    while (records.size() < count &&
           chunk.read(at, std::as_writable_bytes(std::span(&record, 1))) == sizeof(Record)) {
        records.push_back(record);
        at += sizeof(Record);
    }
    return records;
}

void readSampler(const RIFF::Chunk& chunk, SampleChunks& result)
{
    const auto headers = recordsAt<SamplerHeader>(chunk, 0, 1);
    if (headers.empty())
        return;
    const SamplerHeader& header = headers.front();
    constexpr double kSemitone = 4294967296.0;
    if (header.unityNote < 128)
        result.note = header.unityNote + header.pitchFraction / kSemitone;
    for (const SamplerLoop& loop :
         recordsAt<SamplerLoop>(chunk, sizeof(SamplerHeader), header.loops)) {
        if (loop.type == 0 && loop.begin < loop.last &&
            loop.last < std::numeric_limits<std::uint32_t>::max())
            result.loops.push_back({loop.begin, loop.last + 1});
    }
}

std::optional<std::uint32_t> releaseMarker(const RIFF::Chunk& chunk, const std::vector<Loop>& loops)
{
    std::uint32_t loopsEnd = 0;
    for (const Loop& loop : loops)
        loopsEnd = std::max(loopsEnd, loop.end);
    const auto counts = recordsAt<std::uint32_t>(chunk, 0, 1);
    std::vector<std::uint32_t> frames;
    for (const CuePoint& cue :
         recordsAt<CuePoint>(chunk, sizeof(std::uint32_t), counts.empty() ? 0 : counts.front()))
        frames.push_back(cue.frame);
    if (frames.empty())
        return std::nullopt;
    std::ranges::sort(frames);
    const auto behind = std::ranges::lower_bound(frames, loopsEnd);
    return behind == frames.end() ? frames.back() : *behind;
}

} // namespace

SampleChunks readSampleChunks(std::span<const std::byte> bytes)
{
    SampleChunks result;
    const std::vector<std::byte> unwrapped =
        isWavPack(bytes) ? wavPackRiff(bytes) : std::vector<std::byte>();
    const RIFF::File file(unwrapped.empty() ? bytes : unwrapped);
    if (file.id() != RIFF::code("RIFF"))
        return result;
    if (const auto* sampler = file.get<RIFF::Chunk>(RIFF::code("smpl")))
        readSampler(*sampler, result);
    if (const auto* cues = file.get<RIFF::Chunk>(RIFF::code("cue ")))
        result.cue = releaseMarker(*cues, result.loops);
    return result;
}

} // namespace velmora
