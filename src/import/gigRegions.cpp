#include "import/gigRegions.h"

#include "import/RIFF.h"

#include <algorithm>
#include <array>
#include <span>

namespace velmora {

namespace gig {

namespace {

using RIFF::code;

/// Returns the number at an offset in the data of a chunk, which may be null; `otherwise` if the
/// data ends before.
template <class Integer>
Integer fieldAt(const RIFF::Chunk* chunk, std::size_t at, Integer otherwise = {})
{
    Integer result = 0;
    const auto bytes = std::as_writable_bytes(std::span(&result, 1));
    return chunk != nullptr && chunk->read(at, bytes) == sizeof(Integer) ? result : otherwise;
}

/// What chooses between the recordings of a region.
enum class Choice : std::uint8_t {
    None = 0x00,
    Side = 0x80,
    Layer = 0x81,
    Velocity = 0x82,
    Release = 0x84,
    RoundRobin = 0x86,
    Random = 0x87,
    RoundRobinOfKey = 0x89,
};

bool takesTurns(Choice choice)
{
    return choice == Choice::RoundRobin || choice == Choice::Random ||
           choice == Choice::RoundRobinOfKey;
}

/// A dimension: some bits of a recording's number.
struct Dimension {
    Choice choice = Choice::None;
    std::size_t shift = 0;
    std::size_t bits = 0;
    std::size_t zones = 1; ///< The positions that are in use.

    std::size_t zoneOf(std::size_t number) const
    {
        return number >> shift & ((std::size_t{1} << bits) - 1);
    }
};

/// The chunk "3lnk", whose size tells the version.
class Links {
public:
    explicit Links(const RIFF::Chunk& chunk) : chunk_(chunk)
    {
        constexpr std::uint32_t kSizeOfVersion3 = 1092;
        const bool isVersion3 = chunk.size() >= kSizeOfVersion3;
        const std::size_t dimensions = isVersion3 ? 8 : 5;
        const std::size_t most = isVersion3 ? 256 : 32;
        constexpr std::size_t kHead = 4;
        constexpr std::size_t kDimension = 8;
        wavesAt_ = kHead + dimensions * kDimension;
        std::size_t shift = 0;
        for (std::size_t i = 0; i < dimensions; ++i) {
            const std::size_t at = kHead + i * kDimension;
            Dimension dimension{Choice(fieldAt<std::uint8_t>(&chunk, at)), shift,
                                fieldAt<std::uint8_t>(&chunk, at + 1)};
            dimension.bits = std::min<std::size_t>(dimension.bits, 8);
            const std::size_t positions = std::size_t{1} << dimension.bits;
            const std::size_t zones = fieldAt<std::uint8_t>(&chunk, at + 4);
            dimension.zones = zones > 0 ? std::min(zones, positions) : positions;
            shift = std::min<std::size_t>(shift + dimension.bits, 8);
            dimensions_.push_back(dimension);
        }
        count_ = std::min(
            {most, std::size_t{1} << shift, std::size_t{fieldAt<std::uint32_t>(&chunk, 0)}});
    }

    std::size_t count() const { return count_; }
    const std::vector<Dimension>& dimensions() const { return dimensions_; }

    /// Returns the wave of a recording, or nothing if it has none.
    std::optional<std::uint32_t> waveOf(std::size_t number) const
    {
        constexpr std::uint32_t kNone = UINT32_MAX;
        const auto wave = fieldAt<std::uint32_t>(&chunk_, wavesAt_ + 4 * number, kNone);
        return wave == kNone ? std::nullopt : std::optional(wave);
    }

private:
    const RIFF::Chunk& chunk_;
    std::vector<Dimension> dimensions_;
    std::size_t wavesAt_ = 0;
    std::size_t count_ = 0;
};

/// Reads the recordings of a region.
class RecordingReader {
public:
    RecordingReader(const RIFF::List& region, const Links& links) : links_(links)
    {
        if (const auto* parameters = region.get<RIFF::List>(code("3prg")))
            parameters_ = parameters->all<RIFF::List>(code("3ewl"));
        ownTuning_ = readTuning(region);
    }

    /// Returns a recording, or nothing if it has no wave or is not played.
    std::optional<Recording> read(std::size_t number) const
    {
        const auto wave = links_.waveOf(number);
        if (!wave)
            return std::nullopt;
        Recording recording;
        recording.wave = *wave;
        const auto& dimensions = links_.dimensions();
        for (std::size_t i = 0; i < dimensions.size(); ++i) {
            const Dimension& dimension = dimensions[i];
            const std::size_t zone = dimension.zoneOf(number);
            if (dimension.bits == 0)
                continue;
            if (zone >= dimension.zones)
                return std::nullopt;
            if (dimension.choice == Choice::Layer) {
                recording.layer = zone;
            } else if (dimension.choice == Choice::Release) {
                recording.isRelease = zone > 0;
            } else if (dimension.choice == Choice::Velocity) {
                const std::size_t lower = number - (std::size_t{1} << dimension.shift);
                recording.softest = zone > 0 ? loudestOf(lower, i) + 1 : 0;
                recording.loudest = loudestOf(number, i);
            } else if (zone > 0 && !takesTurns(dimension.choice)) {
                // See docs/decisions.md, 175.
                return std::nullopt;
            }
            if (dimension.choice == Choice::Side && dimension.zones > 1)
                recording.right = rightOf(number, dimension, *wave);
        }
        recording.tuning = parametersOf(number) ? readTuning(*parametersOf(number)) : std::nullopt;
        if (!recording.tuning)
            recording.tuning = ownTuning_;
        constexpr std::size_t kPitchTrackAt = 108;
        recording.followsKeys =
            (fieldAt<std::uint8_t>(articulationOf(number), kPitchTrackAt, 1) & 1) != 0;
        return recording;
    }

private:
    /// Returns the wave of the other side, or nothing if one wave has both.
    std::optional<std::uint32_t> rightOf(std::size_t number, const Dimension& side,
                                         std::uint32_t left) const
    {
        const auto right = links_.waveOf(number + (std::size_t{1} << side.shift));
        return right == left ? std::nullopt : right;
    }

    const RIFF::List* parametersOf(std::size_t number) const
    {
        return number < parameters_.size() ? parameters_[number] : nullptr;
    }

    const RIFF::Chunk* articulationOf(std::size_t number) const
    {
        const RIFF::List* parameters = parametersOf(number);
        return parameters ? parameters->get<RIFF::Chunk>(code("3ewa")) : nullptr;
    }

    /// Returns the loudest MIDI velocity for which a recording is. Version 3 has a limit for each
    /// dimension; before, there was one. A limit of 0 divides the velocities evenly.
    int loudestOf(std::size_t number, std::size_t dimension) const
    {
        constexpr std::size_t kLimitAt = 124;
        constexpr std::size_t kLimitsAt = 140;
        constexpr int kLoudest = 127;
        const Dimension& velocity = links_.dimensions()[dimension];
        const std::size_t zone = velocity.zoneOf(number);
        if (zone + 1 == velocity.zones)
            return kLoudest;
        const RIFF::Chunk* articulation = articulationOf(number);
        int limit = fieldAt<std::uint8_t>(articulation, kLimitsAt + dimension);
        if (limit == 0)
            limit = fieldAt<std::uint8_t>(articulation, kLimitAt);
        const auto even = static_cast<int>(128 * (zone + 1) / velocity.zones) - 1;
        return limit == 0 ? even : std::min(limit, kLoudest);
    }

    const Links& links_;
    std::vector<const RIFF::List*> parameters_;
    std::optional<Tuning> ownTuning_;
};

constexpr double kUnitsPerDecibel = 655360.0;

Tuning tuningOf(const RIFF::Chunk& chunk)
{
    Tuning tuning;
    const auto note = fieldAt<std::uint16_t>(&chunk, 4);
    if (note < 128)
        tuning.root = note - fieldAt<std::int16_t>(&chunk, 6) / 100.0;
    tuning.decibels = -fieldAt<std::int32_t>(&chunk, 8) / kUnitsPerDecibel;
    const std::size_t head = fieldAt<std::uint32_t>(&chunk, 0);
    const auto count = fieldAt<std::uint32_t>(&chunk, 16);
    struct {
        std::uint32_t size, type, begin, length;
    } loop{};
    for (std::size_t i = 0, at = head; i < count; ++i, at += sizeof(loop)) {
        if (chunk.read(at, std::as_writable_bytes(std::span(&loop, 1))) < sizeof(loop))
            break;
        if (loop.length > 0 && loop.begin <= UINT32_MAX - loop.length)
            tuning.loops.push_back({loop.begin, loop.begin + loop.length});
    }
    return tuning;
}

} // namespace

std::optional<Tuning> readTuning(const RIFF::List& owner)
{
    const auto* chunk = owner.get<RIFF::Chunk>(code("wsmp"));
    return chunk ? std::optional(tuningOf(*chunk)) : std::nullopt;
}

Region readRegion(const RIFF::List& region)
{
    Region result;
    if (const auto* head = region.get<RIFF::Chunk>(code("rgnh"))) {
        result.lowestKey = fieldAt<std::uint16_t>(head, 0);
        result.highestKey = std::min<int>(fieldAt<std::uint16_t>(head, 2), 127);
    }
    const auto* chunk = region.get<RIFF::Chunk>(code("3lnk"));
    if (chunk == nullptr)
        return result;
    const Links links(*chunk);
    const RecordingReader reader(region, links);
    for (std::size_t number = 0; number < links.count(); ++number)
        if (auto recording = reader.read(number))
            result.recordings.push_back(std::move(*recording));
    return result;
}

} // namespace gig

} // namespace velmora
