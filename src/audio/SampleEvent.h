#pragma once

#include <cstddef>
#include <cstdint>

namespace velmora {

/// Where a sample is: the device that holds it, and its number there.
struct SampleId {
    std::uint32_t device = 0;
    std::uint32_t number = 0;
};

/// Something that happens to a sample, or to all samples of an instrument.
struct SampleEvent {
    enum class Kind : std::uint8_t {
        Start,
        Release, ///< The sample dies away.
        Pitch,
        Bend, ///< All samples change their pitch.
        End,  ///< All samples end.
    };

    /// Stands for all samples.
    static constexpr SampleId kAll{UINT32_MAX, 0};

    bool isFor(std::uint32_t device) const
    {
        return id.device == device || id.device == kAll.device;
    }

    Kind kind = Kind::End;
    SampleId id = kAll;
    float gain = 0.0F;     ///< Of a start.
    float pitch = 1.0F;    ///< The factor of a start, a pitch or a bend.
    double due = 0.0;      ///< In the seconds of `getTime`; 0 for at once.
    std::size_t frame = 0; ///< Its place in the block, once that is known.
};

} // namespace velmora
