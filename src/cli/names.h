#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace velmora {

class Instrument;
class Tunings;

/// Returns the index of the name that a text stands for, or nothing if there is none. Letter case,
/// spaces and punctuation do not count. A text stands for the name that it equals, with or without
/// the name's first word, or else for the only name that has a word at which the text begins.
/// Throws UsageError with the candidates if there are several.
std::optional<std::size_t> findName(const std::vector<std::string>& names, const std::string& text);

/// Returns the position of the program of an instrument that is meant by its number or its name,
/// which may be shortened as for `findName`. An empty text means the first program. `bank` is the
/// only bank to look in; without it a number means the lowest bank that has it. Throws UsageError
/// if there is no such program.
std::size_t findProgram(const Instrument& instrument, std::optional<int> bank,
                        const std::string& text);

/// Returns the name of the current tuning and where it stands, as in "Vallotti on D, A 415 Hz".
std::string tuningTitle(const Tunings& tunings);

/// Returns the name of an instrument's selected program and its number on the command line, as in
/// "20 Church Organ (program 19)".
std::string programTitle(const Instrument& instrument);

} // namespace velmora
