#pragma once

#include "import/OrganPackages.h"
#include "import/OrganTables.h"
#include "import/PipeOrgan.h"

#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace velmora {

/// The ranks of pipes of an XML organ definition.
class XmlRanks {
public:
    /// The arguments must outlive it.
    XmlRanks(const OrganTables& tables, OrganPackages& packages);

    /// The numbers of all ranks that have pipes, in the order of the file.
    const std::vector<int>& ids() const { return ids_; }

    std::string name(int rank) const;

    /// The number of the enclosure that a rank stands in; 0 if in none.
    int enclosure(int rank) const;

    /// Returns a rank with its pipes, which start with their plain sustained recordings, not those
    /// with a tremulant or for quick repetition. See docs/decisions.md, 171.
    PipeOrgan::Rank read(int rank);

    /// What `read` has left out, and why.
    const std::vector<std::pair<std::string, std::string>>& skipped() const { return skipped_; }

private:
    using Rows = std::vector<OrganRow>;

    /// An attack that was chosen, and its number in the definition.
    struct Chosen {
        int id = 0;
        int sampleId = 0;
        OrganPackages::Sample sample;
        PipeOrgan::Attack attack;
    };

    const OrganRow* layerOf(const OrganRow& pipe) const;
    PipeOrgan::Pipe pipeOf(const OrganRow& row, const OrganRow& layer);
    std::vector<Chosen> attacksOf(int layer);
    void addReleases(int layer, const std::vector<Chosen>& attacks, PipeOrgan::Pipe& pipe);
    void tune(PipeOrgan::Pipe& pipe, const OrganPackages::Sample& sample) const;

    const OrganTables& tables_;
    OrganPackages& packages_;
    double organDecibels_ = 0.0;
    std::vector<int> ids_;
    std::unordered_map<int, Rows> pipes_;    ///< By rank.
    std::unordered_map<int, Rows> layers_;   ///< By pipe.
    std::unordered_map<int, Rows> attacks_;  ///< By layer.
    std::unordered_map<int, Rows> releases_; ///< By layer.
    std::vector<std::pair<std::string, std::string>> skipped_;
};

} // namespace velmora
