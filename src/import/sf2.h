#pragma once

#include <cstdint>
#include <filesystem>

namespace velmora {

struct Import;

namespace RIFF {
class File;
}

/// The records of a SoundFont 2 bank that importing reads, as the file has them ("SoundFont
/// Technical Specification", version 2.04, E-mu Systems; the names are the standard's).
namespace sf2 {

#pragma pack(push, 1)

/// A sample header, from "shdr". Positions count 16-bit points of the sample pool "smpl".
struct sfSample {
    char achSampleName[20];
    std::uint32_t dwStart;
    std::uint32_t dwEnd; ///< exclusive
    std::uint32_t dwStartloop;
    std::uint32_t dwEndloop;
    std::uint32_t dwSampleRate;   ///< hertz
    std::uint8_t byOriginalPitch; ///< MIDI key
    std::int8_t chPitchCorrection;
    std::uint16_t wSampleLink;
    std::uint16_t sfSampleType;
};

/// An instrument, from "inst".
struct sfInst {
    char achInstName[20];
    std::uint16_t wInstBagNdx; ///< its first zone in "ibag"; the last is before the next record's
};

/// A zone, from "ibag", which has the layout of the presets' zones.
struct sfPresetBag {
    std::uint16_t wGenNdx; ///< its first generator in "igen"
    std::uint16_t wModNdx;
};

/// A generator of a zone, from "igen".
struct sfInstGenList {
    std::uint16_t sfGenOper;
    std::uint8_t lo; ///< the amount is a word, or a pair of bytes
    std::uint8_t hi;

    std::uint16_t word() const { return static_cast<std::uint16_t>(lo | hi << 8); }
};

#pragma pack(pop)

static_assert(sizeof(sfSample) == 46 && sizeof(sfInst) == 22);
static_assert(sizeof(sfPresetBag) == 4 && sizeof(sfInstGenList) == 4);

} // namespace sf2

/// Reads a SoundFont 2 bank: each of its instruments becomes a stop, presets and modulators are not
/// read. Samples that cannot be played are left out and reported. Throws FormatError for a file
/// that is no bank or has nothing to sound, Cancelled where the host gives up.
void readSoundFont(const std::filesystem::path& path, Import& import);

/// The same of an opened bank.
void readSoundFont(const RIFF::File& file, Import& import);

} // namespace velmora
