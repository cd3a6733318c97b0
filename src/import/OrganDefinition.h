#pragma once

#include <string>
#include <unordered_map>
#include <vector>

namespace velmora {

/// What an XML organ definition says of pipes and their sample files. Its tables are lists of
/// objects, whose fields have full names ("PipeID"), or the letters of a compacted row ("a").
struct OrganDefinition {
    struct Pipe {
        int id = 0;
        int rank = 0;
        int note = 0; ///< as it stands: any number
    };

    struct SampleFile {
        std::string name; ///< relative to the folder of its package
        int package = 0;
        bool licensed = false; ///< encrypted for those who own a licence
    };

    std::string name;
    int number = 0; ///< that the folder of the organ's samples begins with; 0 where none is given
    std::vector<Pipe> pipes;
    std::unordered_map<int, SampleFile> files; ///< by pipe
    std::unordered_map<int, std::string> rankNames;
};

/// Reads the bytes of an XML organ definition. Throws FormatError where they are not XML of that
/// kind or one of the tables that make an organ is missing.
OrganDefinition readOrganDefinition(std::string bytes);

} // namespace velmora
