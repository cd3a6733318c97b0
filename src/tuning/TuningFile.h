#pragma once

#include "tuning/Temperament.h"

#include <cstddef>
#include <filesystem>
#include <optional>
#include <span>
#include <string>

namespace velmora {

/// The kinds of tuning file.
enum class TuningFormat {
    Scale,         ///< A Scala scale: a description, the number of notes and so many pitches.
    Frequencies,   ///< The base frequency, eleven more frequencies in hertz, and one ignored line.
    ExtendedScale, ///< A scale with a reference pitch and names of the notes.
    KeyTunings     ///< A pitch for each key.
};

/// Returns the format that the file name's extension stands for, in any letter case: .scl, .mtx,
/// .ascl or .tun.
std::optional<TuningFormat> tuningFormatOf(const std::filesystem::path& path);

/// True if the extension of a file's name, in any letter case, is that of a keyboard mapping: .kbm.
bool isMappingFile(const std::filesystem::path& path);

/// Returns the format's type name: "Scale", "MTX", "ASCL" or "TUN".
std::string typeName(TuningFormat format);

/// Reads the temperament of twelve notes that a scale or a file of frequencies describes, as the
/// plain reading has it. Lines end in LF or CR LF. Empty lines and
/// lines that begin with one of ! / : @ are comments, and so is the text after the number in a
/// line.
///
/// In a scale, the pitches of C♯ to B are cents above C, or ratios if they contain a "/"; a whole
/// number is cents. Frequencies run from C to B♭ and do not depend on the base; B is the base an
/// octave up.
///
/// Throws FormatError with the line number unless every key's pitch is finite and above 0 Hz.
Temperament readTuning(std::span<const std::byte> bytes, TuningFormat format);

/// Returns the description with which a scale begins, in UTF-8 and without surrounding spaces. It
/// is empty for the other format, which has none.
std::string readTuningDescription(std::span<const std::byte> bytes, TuningFormat format);

} // namespace velmora
