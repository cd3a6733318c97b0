#pragma once

#include <cstdint>
#include <optional>

namespace velmora {

/// What one voice of an ensemble plays, as MIDI numbers it.
struct PartSound {
    /// A program of a bank. Drums are a kit, whose keys are sounds of their own.
    struct Preset {
        int bank = 0;
        std::uint8_t number = 0; ///< 0…127.
        bool isPercussion = false;

        bool operator==(const Preset&) const = default;
    };

    /// The channel volume of a voice that says nothing else.
    static constexpr int kUsualVolume = 100;

    std::optional<Preset> preset; ///< Empty for the program that the instrument plays.
    int volume = kUsualVolume;    ///< The channel volume, 0…127.

    /// True if the voice sounds like the instrument itself, and so needs no part of its own.
    bool isPlain() const { return !preset && volume == kUsualVolume; }

    bool operator==(const PartSound&) const = default;
};

} // namespace velmora
