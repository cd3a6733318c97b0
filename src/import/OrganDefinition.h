#pragma once

#include <string>
#include <unordered_map>
#include <vector>

namespace velmora {

/// The pipes and sample files of an XML organ definition. The XML holds tables of objects; their
/// fields have full names ("PipeID") or, in compacted rows, single letters ("a").
struct OrganDefinition {
    struct Pipe {
        int id = 0;
        int rank = 0;
        int note = 0; ///< MIDI note as the file has it; not checked for its range.
    };

    struct SampleFile {
        std::string name; ///< Path relative to the folder of its package.
        int package = 0;
        bool licensed = false; ///< True if the file is encrypted and needs a licence.
    };

    std::string name;
    int number = 0; ///< The number that starts the name of the sample folder; 0 if not given.
    std::vector<Pipe> pipes;
    std::unordered_map<int, SampleFile> files; ///< By pipe id.
    std::unordered_map<int, std::string> rankNames;
};

/// Reads the bytes of an XML organ definition. Throws FormatError if they are not one or a required
/// table is missing.
OrganDefinition readOrganDefinition(std::string bytes);

} // namespace velmora
