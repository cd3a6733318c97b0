#pragma once

#include "import/PipeOrgan.h"
#include "require.h"
#include "sound/keys.h"

#include <cmath>

namespace velmora {

inline void checkKey(int key)
{
    require(key >= 0 && key <= kLastKey);
}

inline void checkPipe(const PipeOrgan& organ, const PipeOrgan::Pipe& pipe)
{
    checkKey(pipe.key);
    require(!pipe.attacks.empty() && std::isfinite(pipe.gain) && std::isfinite(pipe.cents));
    require(pipe.harmonicNumber > 0.0 && (!pipe.hertz || *pipe.hertz > 0.0));
    for (const PipeOrgan::Attack& attack : pipe.attacks) {
        require(attack.file < organ.files.size());
        for (const auto& loop : attack.loops)
            require(loop.begin < loop.end);
    }
    for (const PipeOrgan::Release& release : pipe.releases)
        require(release.file < organ.files.size() && release.longestHeld > 0.0);
}

/// Checks that an organ refers only to what there is.
inline void checkOrgan(const PipeOrgan& organ)
{
    const ConsoleDefinition& console = organ.console;
    for (const PipeOrgan::Rank& rank : organ.ranks) {
        require(!rank.division || *rank.division < console.divisions.size());
        for (const PipeOrgan::Pipe& pipe : rank.pipes)
            checkPipe(organ, pipe);
    }
    for (const ConsoleDefinition::Division& division : console.divisions) {
        checkKey(division.lowestKey);
        checkKey(division.highestKey);
    }
    for (const ConsoleDefinition::Stop& stop : console.stops) {
        require(stop.division < console.divisions.size());
        for (const ConsoleDefinition::Pipes& pipes : stop.pipes)
            require(pipes.rank < organ.ranks.size() && pipes.count >= 1);
    }
    for (const ConsoleDefinition::Coupler& coupler : console.couplers)
        require(coupler.from < console.divisions.size() && coupler.to < console.divisions.size());
}

} // namespace velmora
