#pragma once

#include "import/SectionedPipes.h"

#include <cstddef>
#include <map>
#include <optional>
#include <vector>

namespace velmora {

/// A "[ManualNNN]" section: keys of a manual or of the pedal, and the stops that they play.
struct OrganManual {
    const OrganSection* section = nullptr;
    std::size_t division = 0; ///< Index in the console's list.
    int firstKey = 0;         ///< The MIDI key of logical key `firstLogicalKey`.
    int firstLogicalKey = 1;

    /// The sections of its stops by their numbers in this manual.
    std::map<int, const OrganSection*> stops;

    /// Returns the MIDI key of a logical key.
    int midiKey(int logicalKey) const { return firstKey + logicalKey - firstLogicalKey; }
};

/// Builds the ranks of an organ from the pipes of "[RankNNN]" sections and of stops that have pipes
/// of their own. A pipe that is borrowed from another stop is not built again.
class SectionedRanks {
public:
    /// Where a pipe stands.
    struct Place {
        std::size_t rank = 0; ///< Index in the organ's ranks.
        int key = 0;          ///< The MIDI key under which the rank has it.
    };

    /// The arguments must outlive this. Ranks are added to the organ when they are first needed.
    SectionedRanks(const OrganSections& sections, const std::map<int, OrganManual>& manuals,
                   PipeOrgan& organ, OrganOmissions& omissions);

    /// Returns where a pipe of a section stands, or nothing if it is silent. If the section does
    /// not say for which key pipe 1 is, it is for MIDI key `firstKey`.
    std::optional<Place> find(const OrganSection& section, int pipe, int firstKey);

    /// The number of the last pipe that a section has, its own or a borrowed one.
    static int lastPipe(const OrganSection& section);

    /// Returns the MIDI key for which pipe 1 of a stop with pipes of its own is.
    static int firstKeyOf(const OrganSection& stop, const OrganManual& manual);

    /// Returns the section of the n-th rank of a stop, or null.
    const OrganSection* rankOf(const OrganSection& stop, int n) const;

private:
    struct Built {
        std::size_t rank = 0;
        int firstKey = 0;         ///< The key of pipe 1 in the rank.
        std::vector<bool> sounds; ///< By pipe number, which starts at 1.
    };

    std::optional<Place> find(const OrganSection& section, int pipe, int firstKey, int borrowings);
    std::optional<Place> findBorrowed(const OrganSection& section, int pipe, int borrowings);
    const Built& build(const OrganSection& section, int firstKey);
    std::optional<std::size_t> swellOf(const OrganSection& section) const;

    const OrganSections& sections_;
    const std::map<int, OrganManual>& manuals_;
    PipeOrgan& organ_;
    OrganOmissions& omissions_;
    SectionedPipes pipes_;
    std::map<const OrganSection*, Built> built_;
    std::map<const OrganSection*, std::size_t> divisions_; ///< The division that owns each section.
    bool hasSwells_ = false;
};

} // namespace velmora
