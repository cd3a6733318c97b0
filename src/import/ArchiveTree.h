#pragma once

#include "base/MemoryGuard.h"
#include "import/ByteSource.h"
#include "import/FileTree.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

namespace velmora {

/// The files in a zip archive. They are unpacked when they are read, in any order, without a search
/// through the archive.
class ArchiveTree : public FileTree {
public:
    /// Lists the files of an archive, which `name` names to the user. Throws FormatError if it is
    /// not a zip archive, or if the name of a file would lead out of it. `memory` grants the memory
    /// for unpacked files and must outlive this.
    ArchiveTree(std::unique_ptr<ByteSource> source, std::string name,
                MemoryGuard& memory = MemoryGuard::machine());

    /// The names of the files, with '/' between components, in the order of the archive.
    const std::vector<std::string>& names() const { return names_; }

    std::vector<std::byte> read(const std::string& name) const override;
    bool contains(const std::string& name) const override;
    std::uint64_t size(const std::string& name) const override;
    std::string displayName(const std::string& name) const override;

private:
    struct Member {
        std::uint64_t position = 0; ///< Where its header begins.
        std::uint64_t size = 0;     ///< Unpacked.
    };

    void add(const std::string& name, Member member);
    const Member* find(const std::string& name) const;

    std::unique_ptr<ByteSource> source_;
    std::string name_;
    MemoryGuard& memory_;
    std::vector<std::string> names_;
    std::unordered_map<std::string, Member> members_; ///< By name in a common spelling.
};

} // namespace velmora
