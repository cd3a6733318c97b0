#pragma once

#include <filesystem>

namespace velmora {

/// A new file that takes the place of another one when it is complete. Until then it stands beside
/// it under a name of its own. The name may hold any bytes, which Qt's file classes do not allow.
class ReplacingFile {
public:
    /// Creates the new file, with the permissions of the one that it is to replace. If `path` is a
    /// symbolic link, the file that it leads to is replaced. Throws std::system_error.
    explicit ReplacingFile(const std::filesystem::path& path);

    /// Removes the new file unless it was committed.
    ~ReplacingFile();
    ReplacingFile(const ReplacingFile&) = delete;
    ReplacingFile& operator=(const ReplacingFile&) = delete;

    /// The descriptor of the new file, for reading and writing.
    int handle() const { return descriptor_; }

    /// Writes the new file to the disk and moves it into place. Throws std::system_error; the old
    /// file is then unchanged.
    void commit();

private:
    std::filesystem::path target_, temporary_;
    int descriptor_ = -1;
};

} // namespace velmora
