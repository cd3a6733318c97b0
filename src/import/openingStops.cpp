#include "import/openingStops.h"

#include <algorithm>

namespace velmora {

namespace {

/// Returns whether the keys of the stop play that pipe of a rank.
bool plays(const ConsoleDefinition::Pipes& pipes, int pipe)
{
    return pipe >= pipes.firstPipe && pipe - pipes.firstPipe < pipes.count;
}

} // namespace

bool hasSound(const ConsoleDefinition::Stop& stop, const std::vector<InstrumentStop>& ranks)
{
    return std::ranges::any_of(stop.pipes, [&](const ConsoleDefinition::Pipes& pipes) {
        const auto& samples = ranks.at(pipes.rank).samples;
        for (std::size_t key = 0; key < kKeys; ++key)
            if (plays(pipes, static_cast<int>(key)) && samples[key].source() != 0)
                return true;
        return false;
    });
}

bool hasFile(const ConsoleDefinition::Stop& stop, const PipeOrgan& organ)
{
    return std::ranges::any_of(stop.pipes, [&](const ConsoleDefinition::Pipes& pipes) {
        return std::ranges::any_of(organ.ranks.at(pipes.rank).pipes, [&](const auto& pipe) {
            return plays(pipes, pipe.key) &&
                   std::ranges::any_of(pipe.attacks, [&](const PipeOrgan::Attack& attack) {
                       return organ.tree->contains(organ.files[attack.file]);
                   });
        });
    });
}

void drawOpeningStops(ConsoleDefinition& console,
                      const std::function<bool(const ConsoleDefinition::Stop&)>& canSound)
{
    if (std::ranges::any_of(console.stops, [&](const ConsoleDefinition::Stop& stop) {
            return stop.isDrawn && canSound(stop);
        }))
        return;
    std::set<std::size_t> divisions;
    for (ConsoleDefinition::Stop& stop : console.stops)
        if (canSound(stop) && divisions.insert(stop.division).second)
            stop.isDrawn = true;
}

std::set<std::size_t> ranksOfDrawnStops(const ConsoleDefinition& console)
{
    std::set<std::size_t> ranks;
    for (const ConsoleDefinition::Stop& stop : console.stops) {
        for (const ConsoleDefinition::Pipes& pipes : stop.pipes) {
            if (stop.isDrawn)
                ranks.insert(pipes.rank);
        }
    }
    return ranks;
}

} // namespace velmora
