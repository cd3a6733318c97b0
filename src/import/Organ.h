#pragma once

#include "import/Import.h"

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace velmora {

/// An organ definition in any format, reduced to stops and the sample file of each key.
struct Organ {
    struct File {
        std::string name; ///< The sound's name in the instrument.
        std::filesystem::path path;
    };

    /// One key of a stop. Keys below the lowest and above the highest pipe of a rank play that
    /// pipe's file, transposed.
    struct Pipe {
        std::size_t stop = 0;            ///< Index in `stops`.
        std::size_t rank = 0;            ///< An arbitrary number, the same for all pipes of a rank.
        int key = 0;                     ///< MIDI key, 0…127.
        std::optional<std::size_t> file; ///< Index in `files`; empty for a skipped pipe.
        std::string text;                ///< The progress text once the pipe is loaded.
    };

    std::vector<std::string> stops; ///< The names of the stops.
    std::vector<File> files;        ///< In the order of their first use by a pipe.
    std::vector<Pipe> pipes;
    std::vector<std::pair<std::string, std::string>> skipped; ///< Skipped pipes, and why.
    long updates = 0;     ///< Approximate number of progress updates; at least 1.
    std::string doneText; ///< The last progress text.
};

/// Adds the stops of an organ to the import's instrument, decodes its files and assigns them to
/// keys. Files that cannot be decoded are skipped. The first stop is drawn, the others are silent.
/// Throws FormatError if nothing sounds, and Cancelled.
void loadOrgan(const Organ& organ, Import& import);

} // namespace velmora
