#pragma once

#include "sequencer/UnsavedSequence.h"

#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace velmora {

struct Abandoned;

/// Where one open document is kept while it is not saved, for the next start of the program if this
/// one does not get to close it. As long as the object lives, other programs leave the file alone.
/// The file stays when it goes, unless it is discarded.
class RecoveryFile {
public:
    /// The folder of all of them: velmora/recovery among the user's data.
    static std::filesystem::path usualFolder();

    /// A new one. There is nothing on the disk before `write`.
    explicit RecoveryFile(std::filesystem::path folder = usualFolder());

    /// Takes over what programs that are gone have left in a folder, the oldest first. What cannot
    /// be read is logged and left.
    static std::vector<Abandoned> abandoned(const std::filesystem::path& folder = usualFolder());

    /// Replaces what is kept. Throws std::runtime_error with a sentence where that fails: what was
    /// kept before then stays.
    void write(const UnsavedSequence& sequence);

    /// Removes what is kept, if there is any.
    void discard();

private:
    RecoveryFile(std::filesystem::path folder, std::string name);

    std::filesystem::path path() const { return folder_ / name_; }
    std::filesystem::path lockPath() const { return folder_ / (name_ + ".lock"); }

    /// Claims the file; false where a program that runs has done so. The system gives a claim up
    /// when the program ends, however it ends.
    bool claim();

    std::filesystem::path folder_;
    std::string name_; ///< Never used again once it is discarded.
    std::unique_ptr<std::FILE, int (*)(std::FILE*)> lock_;
};

/// What a program that is gone has left, and the file that it is kept in.
struct Abandoned {
    RecoveryFile file;
    UnsavedSequence sequence;
};

} // namespace velmora
