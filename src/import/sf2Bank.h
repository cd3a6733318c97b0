#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace velmora {

namespace RIFF {
class Chunk;
class File;
class List;
} // namespace RIFF

/// Records of a SoundFont 2 bank as they are stored in the file ("SoundFont Technical
/// Specification", version 2.04, E-mu Systems). The names are those of the standard.
namespace sf2 {

#pragma pack(push, 1)

/// A sample header, from "shdr". Positions are indices of 16-bit sample points in "smpl".
struct sfSample {
    char achSampleName[20];
    std::uint32_t dwStart;
    std::uint32_t dwEnd; ///< Exclusive.
    std::uint32_t dwStartloop;
    std::uint32_t dwEndloop;       ///< Exclusive.
    std::uint32_t dwSampleRate;    ///< In hertz.
    std::uint8_t byOriginalPitch;  ///< MIDI key.
    std::int8_t chPitchCorrection; ///< In cents.
    std::uint16_t wSampleLink;     ///< The other half of a stereo pair.
    std::uint16_t sfSampleType;
};

/// An instrument, from "inst".
struct sfInst {
    char achInstName[20];
    std::uint16_t wInstBagNdx; ///< Its first zone in "ibag"; its zones end at the next record's.
};

/// A zone of an instrument, from "ibag". The zones of presets have the same layout.
struct sfPresetBag {
    std::uint16_t wGenNdx; ///< Its first generator in "igen".
    std::uint16_t wModNdx;
};

/// A generator of a zone, from "igen".
struct sfInstGenList {
    std::uint16_t sfGenOper;
    std::uint8_t lo; ///< The amount is either a pair of bytes or a word.
    std::uint8_t hi;

    std::uint16_t word() const { return static_cast<std::uint16_t>(lo | hi << 8); }
};

#pragma pack(pop)

static_assert(sizeof(sfSample) == 46 && sizeof(sfInst) == 22);
static_assert(sizeof(sfPresetBag) == 4 && sizeof(sfInstGenList) == 4);

/// Throws FormatError if the bank's "INFO" list tells a version above 2. The samples of such banks
/// are compressed, and would be noise.
void checkVersion(const RIFF::List& info);

/// Returns how many bytes the sounds take in all; the pool "smpl" has `poolLength` bytes. Samples
/// may overlap, so that a small file could ask for any amount of memory.
std::uint64_t bytesOf(std::span<const sfSample> samples, std::uint32_t poolLength);

/// The parts of an open bank that its instruments are made of. The last record of each kind only
/// ends the one before it.
struct Bank {
    const RIFF::Chunk& pool;     ///< Sample points of 16 bits.
    const RIFF::Chunk* lowBytes; ///< The lowest byte of each point in a bank of 24 bits, or null.
    std::vector<sfSample> samples;
    std::vector<sfInst> instruments;
    std::vector<sfPresetBag> bags; ///< The zones of all instruments.
    std::vector<sfInstGenList> generators;
    std::string name;
};

/// Reads the records of a bank. Throws FormatError if a part is missing, if there are no
/// instruments, or if the sounds are compressed.
Bank readBank(const RIFF::File& file);

/// Returns a text field up to its first NUL byte.
std::string fieldText(std::span<const char> field);

} // namespace sf2

} // namespace velmora
