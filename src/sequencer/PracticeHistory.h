#pragma once

#include "midi/messages.h"
#include "sequencer/PracticeResult.h"

#include <QDateTime>

#include <bitset>
#include <cstddef>
#include <filesystem>
#include <optional>
#include <vector>

namespace velmora {

/// A practice session of the past.
struct PracticeEntry {
    QDateTime time; ///< When it ended.
    PracticeSummary summary;
};

/// What the user last practised of a piece.
struct PracticeChoice {
    std::bitset<midi::kChannels> voices;
    int firstBar = 1;
    int lastBar = 1;

    bool operator==(const PracticeChoice&) const = default;
};

/// The folder in which the histories of the user's pieces are kept.
std::filesystem::path practiceFolder();

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

    /// What the user last chose; nothing if the piece was never practised.
    const std::optional<PracticeChoice>& choice() const { return choice_; }

    /// Keeps a choice, as `add` does with an entry.
    void choose(const PracticeChoice& choice);

private:
    void write() const;

    std::filesystem::path file_;
    std::filesystem::path piece_;
    std::vector<PracticeEntry> entries_;
    std::optional<PracticeChoice> choice_;
};

} // namespace velmora
