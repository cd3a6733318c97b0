#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace velmora {

struct MidiFileEvents;

/// A part of the sung text, usually a syllable, and the step at which it begins.
struct Syllable {
    double step;
    std::string text; ///< UTF-8; ends in a space if a word ends here.

    bool operator==(const Syllable&) const = default;
};

/// One line of the sung text; never empty.
using LyricLine = std::vector<Syllable>;

/// Where the text is at a step.
struct LyricPlace {
    std::size_t line;

    /// The syllable of that line that is sung; nothing before its first one.
    std::optional<std::size_t> syllable;

    bool operator==(const LyricPlace&) const = default;
};

/// Returns the text of a file, line by line in order of time: the lyrics of the track that has the
/// most, or else the texts of a karaoke file (.kar), in which "/" begins a line and "\" a verse.
/// Long texts without lines are broken between words.
std::vector<LyricLine> lyricsOf(const MidiFileEvents& file);

/// Returns the place at a step. A line is shown from a bit before it begins, or from the end of the
/// one before. `lines` must not be empty.
LyricPlace lyricPlaceAt(const std::vector<LyricLine>& lines, double step);

} // namespace velmora
