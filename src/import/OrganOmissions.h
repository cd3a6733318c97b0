#pragma once

#include "import/OrganSections.h"

#include <cstddef>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace velmora {

/// Collects what is left out of an organ definition, and why. Pipes of a section that are left out
/// for the same reason become one entry.
class OrganOmissions {
public:
    /// Notes a whole section, or what the key of a section asks for.
    void add(const OrganSection& section, const std::string& why, const std::string& key = "");

    /// Notes a pipe of a section, counted from 1.
    void addPipe(const OrganSection& section, int pipe, const std::string& why);

    /// Returns the place and the reason of each entry, in the order in which they were noted.
    std::vector<std::pair<std::string, std::string>> list() const;

private:
    struct Entry {
        const OrganSection* section;
        std::string why;
        std::size_t line;
        std::vector<int> pipes;
    };

    Entry& entry(const OrganSection& section, const std::string& why, std::size_t line);

    std::vector<Entry> entries_;
    std::map<std::pair<const OrganSection*, std::string>, std::size_t> positions_;
};

} // namespace velmora
