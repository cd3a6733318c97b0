#pragma once

#include "audio/Loop.h"
#include "import/FileTree.h"
#include "sound/ConsoleDefinition.h"

#include <cstdint>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace velmora {

struct Import;

/// An organ definition in any format, as its maker meant it.
struct PipeOrgan {
    /// A recording that a pipe starts with. What the definition does not say is taken from the
    /// sample file's own chunks.
    struct Attack {
        std::size_t file = 0; ///< Index in `files`.
        std::vector<Loop> loops;
        std::optional<std::uint32_t> cue; ///< The frame where the file's own release begins.
        bool hasOwnRelease = true;        ///< False if what follows the loops must not be used.
        float softest = 0.0F;             ///< The velocities that it is for.
        float loudest = 1.0F;
        std::optional<double> hertz{}; ///< How it sounds as recorded, if that is not `Pipe::hertz`.
    };

    /// A recording of how a pipe dies away.
    struct Release {
        std::size_t file = 0;             ///< Index in `files`.
        std::optional<std::uint32_t> cue; ///< Its first frame in the file.
        /// It is for keys that were held at most so long, in seconds.
        double longestHeld = std::numeric_limits<double>::infinity();
        std::optional<double> hertz{}; ///< As for an attack. Without any, it is that of the attack.
    };

    struct Pipe {
        int key = 0;                 ///< The MIDI key under which the rank has it, 0…127.
        std::vector<Attack> attacks; ///< At least one; those for the same velocities take turns.
        std::vector<Release> releases;
        float gain = 1.0F;

        /// How it sounds when it is played as recorded, in hertz. Without it, the note in the
        /// sample file counts, or else the pitch that is expected of the key.
        std::optional<double> hertz;
        double cents = 0.0; ///< By how much it is meant to differ from the temperament.

        /// By how many cents the definition raises the recording to make this pipe of it, as where
        /// a recording serves several keys. Tells which pitch to expect of the recording.
        double retuning = 0.0;
        double harmonicNumber = 8.0; ///< 8 for an 8′ pipe, 16 for a 4′ one, 24 for a 2⅔′ one.
        bool isPercussive = false;   ///< It plays to its end, whenever the key is released.
    };

    struct Rank {
        std::string name;
        /// Whose swell it stands in; an index in the console's list. Empty if in none.
        std::optional<std::size_t> division;
        std::vector<Pipe> pipes;
    };

    std::string name;
    std::vector<std::string> files; ///< Names in `tree`.
    std::shared_ptr<const FileTree> tree;
    std::vector<Rank> ranks;
    ConsoleDefinition console;
    std::vector<std::pair<std::string, std::string>> skipped; ///< What was left out, and why.
};

/// Loads the files of an organ and makes the import's instrument of its ranks; the console becomes
/// that of the import. Files that cannot be decoded are skipped. If the console draws no stop that
/// can sound, the first such stop of each division is drawn. Throws FormatError if nothing sounds,
/// and Cancelled.
///
/// If the host permits it, only the ranks of the drawn stops are loaded at once; those of the other
/// stops follow in the background, in their order. A division whose only drawn stop turns out to be
/// silent then has none.
void loadPipeOrgan(PipeOrgan organ, Import& import);

} // namespace velmora
