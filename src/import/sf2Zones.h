#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace velmora {

namespace sf2 {

struct Bank;

/// What a zone of an instrument plays, with all generators applied. Positions are indices of sample
/// points in the pool, and `begin` <= `end` is within the pool.
struct Zone {
    /// What a sample does while its key is held and after its release.
    enum class Mode : std::uint8_t {
        Once,          ///< It is played once.
        Loop,          ///< It loops until it has died away.
        LoopWhileHeld, ///< It loops until the key is released, and then goes on behind the loop.
    };

    /// Returns by how many cents a key is above the pitch as recorded.
    double centsOf(int key) const;

    int lowestKey = 0;
    int highestKey = 127;
    int softest = 0; ///< MIDI velocity.
    int loudest = 127;
    std::size_t sample = 0; ///< The index of its header.
    std::uint32_t begin = 0;
    std::uint32_t end = 0; ///< Exclusive.
    Mode mode = Mode::Once;
    std::uint32_t loopBegin = 0; ///< Within the sample, like the end.
    std::uint32_t loopEnd = 0;   ///< Exclusive.
    double rate = 0.0;           ///< In hertz.
    int root = 60;               ///< The key at which it sounds as recorded, without `cents`.
    double cents = 0.0;          ///< The tuning of all keys.
    int centsPerKey = 100;       ///< 0 if all keys sound alike.
    std::optional<int> pitchOf;  ///< The key whose pitch all keys have.
    double decibels = 0.0;       ///< Its gain.
    int pan = 0;                 ///< From -500, left, to 500.
    double releaseSeconds = 0.0; ///< How long its full level would take to die away.
};

/// Returns the zones of an instrument that can be played, by its index, in the order of the bank.
/// A reason is added to `skipped` for each of the others.
std::vector<Zone> zonesOf(const Bank& bank, std::size_t instrument,
                          std::vector<std::string>& skipped);

/// A zone, or two zones that are the sides of a stereo sound.
struct Sides {
    Zone left;
    std::optional<Zone> right;

    /// The side with the longer loop, which both sides follow.
    const Zone& leader() const;
};

/// Joins the sides of stereo sounds: zones for the same keys and velocities that are tuned alike
/// and whose samples are linked or panned to the two sides. The order stays that of the left sides.
std::vector<Sides> joinSides(const Bank& bank, const std::vector<Zone>& zones);

/// A zone that sounds on a key, with the velocities for which it does.
struct Layer {
    std::size_t zone = 0; ///< The index of its sides.
    int softest = 0;
    int loudest = 0;
};

/// Returns what sounds on a key: one zone for each velocity. If there are several, it is the
/// loudest one, and of equal ones rather a stereo sound.
std::vector<Layer> layersOf(const std::vector<Sides>& zones, int key);

} // namespace sf2

} // namespace velmora
