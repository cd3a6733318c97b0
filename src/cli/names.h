#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace velmora {

/// Returns the index of the name that a text stands for, or nothing if there is none. Letter case,
/// spaces and punctuation do not count. A text stands for the name that it equals, with or without
/// the name's first word, or else for the only name that has a word at which the text begins.
/// Throws UsageError with the candidates if there are several.
std::optional<std::size_t> findName(const std::vector<std::string>& names, const std::string& text);

/// Returns the General MIDI program, 0…127, for its number counted from 0 or its name, which may be
/// shortened as for `findName`. Throws UsageError if there is no such program.
std::uint8_t programNamed(const std::string& text);

/// Returns a program's name and its number on the command line, as in "20 Church Organ (program
/// 19)".
std::string programTitle(std::uint8_t program);

} // namespace velmora
