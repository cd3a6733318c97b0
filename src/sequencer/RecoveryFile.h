#pragma once

#include "sequencer/UnsavedSequence.h"

#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace velmora {

struct Abandoned;

/// Keeps one unsaved document on disk, so that the next start of the program can restore it after a
/// crash. While this object exists, other programs leave the file alone. Destroying it keeps the
/// file unless it was discarded.
class RecoveryFile {
public:
    /// The usual folder of recovery files: velmora/recovery in the user's data folder.
    static std::filesystem::path defaultFolder();

    /// Creates nothing on disk before the first `write`.
    explicit RecoveryFile(std::filesystem::path folder = defaultFolder());

    /// Claims and reads the files that programs no longer running have left in a folder. Returns
    /// the oldest first. Files that cannot be read are logged and left there.
    static std::vector<Abandoned> abandoned(const std::filesystem::path& folder = defaultFolder());

    /// Replaces the kept document. If that fails, keeps the previous one and throws
    /// std::runtime_error with a sentence.
    void write(const UnsavedSequence& sequence);

    /// Removes the kept document, if there is one.
    void discard();

private:
    RecoveryFile(std::filesystem::path folder, std::string name);

    std::filesystem::path path() const { return folder_ / name_; }
    std::filesystem::path lockPath() const;

    /// Claims the file. Returns false if a running program has claimed it. The system releases the
    /// claim when the program ends, however it ends.
    bool claim();
    void unlock();

    std::filesystem::path folder_;
    std::string name_; ///< Unique; replaced when the file is discarded.
    std::unique_ptr<std::FILE, int (*)(std::FILE*)> lock_;
};

/// A document left by a program that no longer runs, and the file that keeps it.
struct Abandoned {
    RecoveryFile file;
    UnsavedSequence sequence;
};

} // namespace velmora
