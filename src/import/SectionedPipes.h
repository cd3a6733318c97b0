#pragma once

#include "import/OrganOmissions.h"
#include "import/OrganSections.h"
#include "import/PipeOrgan.h"

#include <cstddef>
#include <optional>
#include <string>
#include <unordered_map>

namespace velmora {

/// Reads the pipes of organ definitions in text form: their recordings, loops, releases, volumes
/// and pitches. What the whole organ, a wind chest and a rank say applies to all of their pipes.
class SectionedPipes {
public:
    /// The sections and omissions must outlive this. The names of sample files are added to
    /// `files`.
    SectionedPipes(const OrganSections& sections, std::vector<std::string>& files,
                   OrganOmissions& omissions)
        : sections_(sections), files_(files), omissions_(omissions)
    {
    }

    /// Returns the pipe of a section, or nothing if all its recordings are left out. The pipe
    /// sounds `octaves` octaves above what its harmonic number means at MIDI key `key`.
    std::optional<PipeOrgan::Pipe> read(const OrganSection& section, int number, int key,
                                        int octaves);

    /// Returns the section of the wind chest on which a rank stands, or null.
    const OrganSection* windchest(const OrganSection& section) const;

private:
    /// What a pipe inherits.
    struct Voicing {
        double gain = 1.0;
        double retuning = 0.0;   ///< In cents.
        double correction = 0.0; ///< In cents.

        /// Adds what the keys "PREFIXamplitudelevel" and so on say.
        void add(const OrganSection& section, const std::string& prefix);
    };

    Voicing voicing(const OrganSection& section, const std::string& pipe) const;
    void addAttacks(const OrganSection& section, int number, PipeOrgan::Pipe& pipe);
    void addReleases(const OrganSection& section, int number, PipeOrgan::Pipe& pipe);
    PipeOrgan::Attack attack(const OrganSection& section, const std::string& prefix,
                             PipeOrgan::Pipe& pipe);
    void setPitch(const OrganSection& section, const std::string& prefix,
                  PipeOrgan::Pipe& pipe) const;
    std::size_t fileIndex(const std::string& name);

    const OrganSections& sections_;
    std::vector<std::string>& files_;
    OrganOmissions& omissions_;
    std::unordered_map<std::string, std::size_t> indices_; ///< By name in a common spelling.
};

} // namespace velmora
