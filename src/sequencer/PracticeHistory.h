#pragma once

#include "sequencer/PracticeResult.h"

#include <QDateTime>

#include <cstddef>
#include <filesystem>
#include <vector>

namespace velmora {

/// A practice session of the past.
struct PracticeEntry {
    QDateTime time; ///< When it ended.
    PracticeSummary summary;
};

/// The latest practice sessions of one piece, kept in a file.
class PracticeHistory {
public:
    static constexpr std::size_t kMaxEntries = 50;

    /// Reads the history of a piece from its file in `folder`. Entries of a damaged file that
    /// cannot be read are left out.
    PracticeHistory(const std::filesystem::path& folder, const std::filesystem::path& piece);

    /// From the oldest to the latest.
    const std::vector<PracticeEntry>& entries() const { return entries_; }

    /// Adds an entry, drops the oldest one if there are too many, and writes the file. Throws
    /// std::runtime_error if it cannot be written.
    void add(PracticeEntry entry);

private:
    std::filesystem::path file_;
    std::filesystem::path piece_;
    std::vector<PracticeEntry> entries_;
};

} // namespace velmora
