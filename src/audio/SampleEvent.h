#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <span>

namespace velmora {

class ReleaseAlignment;

/// Where a sample is: the device that holds it, and its number there.
struct SampleId {
    std::uint32_t device = 0;
    std::uint32_t number = 0;
};

/// A sample that may follow another one, on the same device, when that is released.
struct FollowingSound {
    std::uint32_t number = 0;
    float gain = 1.0F;  ///< In relation to the other sample, where no alignment tells it.
    float pitch = 1.0F; ///< Its pitch factor in relation to that of the other sample.
    double longestHeld = std::numeric_limits<double>::infinity(); ///< In seconds.

    /// How it continues the other sample; null if it only sounds beside it.
    const ReleaseAlignment* alignment = nullptr;
};

/// Something that happens to a sample, or to all samples of an instrument.
struct SampleEvent {
    enum class Kind : std::uint8_t {
        Start,
        Release, ///< The sample dies away, or another one follows it.
        Cut,     ///< The sample ends.
        Pitch,   ///< The sample, and what followed it, glide to another pitch.
        Bend,    ///< All samples change their pitch.
        Swell,   ///< A group of samples changes its gain.
        End,     ///< All samples end.
    };

    /// Stands for all samples.
    static constexpr SampleId kAll{UINT32_MAX, 0};

    bool isFor(std::uint32_t device) const
    {
        return id.device == device || id.device == kAll.device;
    }

    Kind kind = Kind::End;
    SampleId id = kAll;
    float gain = 0.0F;      ///< Of a start or a swell.
    float pitch = 1.0F;     ///< The factor of a start, a pitch or a bend.
    std::uint8_t swell = 0; ///< Of a start or a swell: the group.
    double due = 0.0;       ///< In the seconds of `getTime`; 0 for at once.
    std::size_t frame = 0;  ///< Its place in the block, once that is known.

    /// Of a release: what may follow, the lowest `longestHeld` first. Of a pitch: what may have
    /// followed. It must exist as long as the sample does.
    std::span<const FollowingSound> following{};

    double glide = 0.0; ///< Of a pitch: the seconds of the glide.
};

} // namespace velmora
