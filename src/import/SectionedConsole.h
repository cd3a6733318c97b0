#pragma once

#include "import/SectionedRanks.h"

#include <map>
#include <optional>
#include <set>

namespace velmora {

/// Builds the divisions, stops and couplers of an organ definition in text form, and the ranks that
/// they need.
class SectionedConsole {
public:
    /// The arguments must outlive this.
    SectionedConsole(const OrganSections& sections, PipeOrgan& organ, OrganOmissions& omissions);

    /// Fills the console and the ranks of the organ.
    void build();

private:
    void addDivision(OrganManual& manual, const std::string& fallbackName, bool isPedal);
    void collectStops();
    void addStop(const OrganSection& section, const OrganManual& manual);
    std::vector<ConsoleDefinition::Pipes> ownPipes(const OrganSection& section,
                                                   const OrganManual& manual);
    std::vector<ConsoleDefinition::Pipes> ranksOf(const OrganSection& section,
                                                  const OrganManual& manual);
    void addCoupler(const OrganSection& section, const OrganManual& manual);
    void noteTremulants();

    /// True if a drawknob is drawn when the organ is opened: by itself, or by its switches.
    bool isDrawn(const OrganSection& section, int depth = 0);

    /// True if the definition hides a stop from the player.
    bool isHidden(const OrganSection& section);

    const OrganSections& sections_;
    PipeOrgan& organ_;
    OrganOmissions& omissions_;
    std::map<int, OrganManual> manuals_; ///< By number; the pedal is 0.
    std::optional<SectionedRanks> ranks_;
    std::map<const OrganSection*, bool> drawn_;
};

} // namespace velmora
