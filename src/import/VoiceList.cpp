#include "import/VoiceList.h"

#include <cstdint>
#include <map>

namespace velmora {

namespace {

/// Everything that makes two pipes sound from the same recordings.
using VoiceKey = std::vector<std::uint64_t>;

VoiceKey voiceKeyOf(const PipeOrgan::Pipe& pipe)
{
    constexpr std::uint64_t kNone = UINT64_MAX;
    VoiceKey key{pipe.isPercussive ? 1U : 0U, pipe.attacks.size()};
    for (const PipeOrgan::Attack& attack : pipe.attacks) {
        key.insert(key.end(), {attack.file, attack.hasOwnRelease ? 1U : 0U,
                               attack.cue ? *attack.cue : kNone, attack.loops.size()});
        for (const Loop& loop : attack.loops)
            key.insert(key.end(), {loop.begin, loop.end});
    }
    for (const PipeOrgan::Release& release : pipe.releases)
        key.insert(key.end(), {release.file, release.cue ? *release.cue : kNone});
    return key;
}

} // namespace

VoiceList::VoiceList(const PipeOrgan& organ, const std::vector<std::size_t>& order)
{
    std::map<VoiceKey, std::size_t> known;
    ofPipes.resize(organ.ranks.size());
    for (const std::size_t rank : order) {
        for (const PipeOrgan::Pipe& pipe : organ.ranks[rank].pipes) {
            const auto [voice, isNew] = known.try_emplace(voiceKeyOf(pipe), pipes.size());
            if (isNew)
                pipes.push_back(&pipe);
            ofPipes[rank].push_back(voice->second);
        }
    }
}

std::vector<std::size_t> orderOfRanks(const PipeOrgan& organ)
{
    std::vector<std::size_t> result;
    std::vector<bool> isListed(organ.ranks.size());
    const auto add = [&](std::size_t rank) {
        if (!isListed[rank])
            result.push_back(rank);
        isListed[rank] = true;
    };
    for (const bool isDrawn : {true, false}) {
        for (const ConsoleDefinition::Stop& stop : organ.console.stops) {
            for (const ConsoleDefinition::Pipes& pipes : stop.pipes) {
                if (stop.isDrawn == isDrawn)
                    add(pipes.rank);
            }
        }
    }
    for (std::size_t rank = 0; rank < organ.ranks.size(); ++rank)
        add(rank);
    return result;
}

} // namespace velmora
