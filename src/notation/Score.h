#pragma once

#include "notation/NoteValue.h"
#include "notation/Piece.h"
#include "notation/WrittenPitch.h"

#include <optional>
#include <string>
#include <vector>

namespace velmora {

/// A piece as it is written: bars, staves, voices, note values. Times are in divisions from the
/// beginning of the piece (see `kScoreDivisions`).
struct Score {
    /// A note, a chord or a rest.
    struct Element {
        int position = 0;
        NoteValue value;
        std::vector<WrittenPitch> pitches; ///< From the lowest to the highest; none in a rest.
        bool isTied = false;               ///< To the element that follows.
        bool continuesTie = false;
        bool beginsTriplet = false, endsTriplet = false;
    };

    /// The elements of a voice in a bar, which they fill.
    struct Voice {
        unsigned staff = 0;  ///< From the top.
        unsigned number = 0; ///< Within the staff.
        std::vector<Element> elements;
    };

    struct Bar {
        int start = 0, length = 0;
        std::optional<Piece::TimeSignature> timeSignature; ///< If it changes here.
        std::optional<Piece::KeySignature> keySignature;   ///< If it changes here.
        struct Tempo {
            int position;
            double quartersPerMinute;
        };
        std::vector<Tempo> tempos;
    };

    struct Part {
        std::string name;
        std::vector<bool> isBass;             ///< For each staff, whether it has a bass clef.
        std::vector<std::vector<Voice>> bars; ///< The voices with notes, bar by bar.
        std::optional<int> program = {};      ///< As in `Piece::Part`, and so is what follows.
        bool isPercussion = false;
    };

    /// How many voices a staff has at most. A chord that finds none ends an earlier one.
    static constexpr unsigned kVoices = 4;

    std::string title;
    std::vector<Bar> bars; ///< At least one.
    std::vector<Part> parts;
};

/// Writes a piece down. Notes go to the nearest place on the grid of their part; a part of a wide
/// range has a staff for each hand. Notes before the beginning or without an end are left out.
/// Throws std::length_error if the piece is too long.
Score makeScore(const Piece& piece);

} // namespace velmora
