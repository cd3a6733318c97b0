#pragma once

#include "import/Import.h"

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace velmora {

/// What an organ definition of any format comes to: stops, and the files that their keys sound.
struct Organ {
    struct File {
        std::string name; ///< of the sound in the instrument
        std::filesystem::path path;
    };

    /// One key of a stop. Keys that the pipes of a rank leave out below its lowest and above its
    /// highest one sound these two, transposed.
    struct Pipe {
        std::size_t stop = 0;            ///< index in `stops`
        std::size_t rank = 0;            ///< any number
        int key = 0;                     ///< 0…127
        std::optional<std::size_t> file; ///< index in `files`; none for a pipe left out
        std::string text;                ///< shown when it is loaded
    };

    std::vector<std::string> stops; ///< their names
    std::vector<File> files; ///< each used by a pipe, in the order of the first one that does
    std::vector<Pipe> pipes;
    std::vector<std::pair<std::string, std::string>> skipped; ///< pipes left out, and why
    long updates = 0;                                         ///< about how often progress is shown
    std::string doneText;                                     ///< shown at the end
};

/// Adds the stops of an organ to the import's instrument, decodes its files and lays them on their
/// keys. A file that cannot be decoded is skipped. The first stop is drawn, the others are
/// silent. Throws FormatError when nothing sounds, and Cancelled.
void loadOrgan(const Organ& organ, Import& import);

} // namespace velmora
