#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace velmora {

/// The files that belong to an instrument: a folder, or the members of an archive.
class FileTree {
public:
    virtual ~FileTree() = default;

    /// Returns the whole content of a file. `name` is relative to the tree, with '/' or '\' between
    /// its components; the case of ASCII letters may differ. Throws FormatError if there is no such
    /// file, if it is not a regular one, or if it cannot be read. May be called on any thread.
    virtual std::vector<std::byte> read(const std::string& name) const = 0;

    /// True if `read` would find the file. May be called on any thread.
    virtual bool contains(const std::string& name) const = 0;

    /// The number of bytes of a file; 0 if there is no such file. May be called on any thread.
    virtual std::uint64_t size(const std::string& name) const = 0;

    /// How a message names a file to the user.
    virtual std::string displayName(const std::string& name) const = 0;
};

} // namespace velmora
