#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace velmora {

/// A piece of music as it is exchanged with notation programs. Times are in quarter notes from the
/// beginning of the piece.
struct Piece {
    static constexpr double kLongest = 1e6; ///< What is longer is no music.

    struct Note {
        double start = 0.0;
        double length = 0.0;
        unsigned key = 0; ///< MIDI key, 0…127.

        /// The place of the spelling on the chain of fifths: 0 for C, 1 for G, −1 for F. Empty if
        /// the key signature shall decide.
        std::optional<int> place = std::nullopt;
        float velocity = 0.8F; ///< 0 to 1.
    };

    /// A syllable of the sung text. A space follows the last one of a word.
    struct Lyric {
        double start = 0.0;
        std::string text;
    };

    struct Part {
        std::string name;
        std::vector<Note> notes;         ///< In any order.
        std::optional<int> program = {}; ///< General MIDI, 0…127.
        bool isPercussion = false;       ///< If so, keys stand for instruments.
        std::vector<Lyric> lyrics = {};  ///< In order.
    };

    struct TimeSignature {
        double start = 0.0;
        int beats = 4;
        int unit = 4; ///< The note value of a beat: 4 for a quarter note; a power of two, 1…32.

        bool operator==(const TimeSignature&) const = default;
    };

    struct KeySignature {
        double start = 0.0;
        int fifths = 0; ///< Sharps, or flats if negative; −7…7.
        bool isMinor = false;

        bool operator==(const KeySignature&) const = default;
    };

    struct Tempo {
        double start = 0.0;
        double quartersPerMinute = 120.0;

        bool operator==(const Tempo&) const = default;
    };

    std::string title;
    std::vector<Part> parts;
    std::vector<TimeSignature> timeSignatures; ///< In order; 4/4 before the first.
    std::vector<KeySignature> keySignatures;   ///< In order; C major before the first.
    std::vector<Tempo> tempos;                 ///< In order; 120 before the first.
};

} // namespace velmora
