#pragma once

#include "tuning/Temperament.h"

#include <cstddef>
#include <filesystem>
#include <optional>
#include <span>
#include <string>

namespace velmora {

/// The kinds of tuning file. Both describe twelve notes.
enum class TuningFormat {
    Scale,      ///< A Scala scale: a description, the count 12, eleven pitches and the octave.
    Frequencies ///< The base frequency, eleven more frequencies in hertz, and one ignored line.
};

/// Returns the format that the file name's extension stands for, in any letter case: .scl or .mtx.
std::optional<TuningFormat> tuningFormatOf(const std::filesystem::path& path);

/// Returns the format's type name: "Scale" or "MTX".
std::string typeName(TuningFormat format);

/// Reads the temperament that a tuning file describes. Lines end in LF or CR LF. Empty lines and
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
