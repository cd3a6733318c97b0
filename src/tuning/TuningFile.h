#pragma once

#include "tuning/Temperament.h"

#include <cstddef>
#include <span>

namespace velmora {

enum class TuningFormat {
    Scale,      ///< A Scala scale: a description, the count 12, eleven pitches, the octave.
    Frequencies ///< The base frequency and eleven more in hertz, then one line without meaning.
};

/// The temperament that a tuning file describes. Lines end in LF or CR LF; those that are empty or
/// begin with one of ! / : @ are comments, and so is what follows a number on its line.
///
/// In a scale a pitch is cents above C, from C♯ to B, or a ratio if it holds a "/"; a whole number
/// is cents. Frequencies run from C to B♭, whatever the base is, and B is the base an octave up.
///
/// Throws FormatError with the line, unless every key has a pitch: finite and above 0 Hz.
Temperament readTuning(std::span<const std::byte> bytes, TuningFormat format);

} // namespace velmora
