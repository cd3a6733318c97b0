#include "import/MemoryNeeds.h"

#include "audio/AudioFileDecoder.h"
#include "base/FormatError.h"
#include "import/Import.h"

#include <spdlog/fmt/fmt.h>

#include <optional>
#include <set>

namespace velmora {

namespace {

/// Decoding makes no file more than so many times as large, except for silence.
constexpr std::uint64_t kGreatestRatio = 16;

/// Returns the files of a rank that no earlier rank has, and adds them to `known`.
std::vector<std::size_t> newFiles(const PipeOrgan::Rank& rank, std::set<std::size_t>& known)
{
    std::vector<std::size_t> result;
    const auto add = [&](std::size_t file) {
        if (known.insert(file).second)
            result.push_back(file);
    };
    for (const PipeOrgan::Pipe& pipe : rank.pipes) {
        for (const PipeOrgan::Attack& attack : pipe.attacks)
            add(attack.file);
        for (const PipeOrgan::Release& release : pipe.releases)
            add(release.file);
    }
    return result;
}

/// Returns the sound of the first file that can be decoded, and the size of that file.
std::optional<std::pair<Pcm, std::uint64_t>>
firstSound(const PipeOrgan& organ, const std::vector<std::size_t>& files, const Import& import)
{
    for (const std::size_t file : files) {
        try {
            const auto bytes = organ.tree->read(organ.files[file]);
            return std::pair(decodeAudio(bytes, import.decoding()), bytes.size());
        } catch (const FormatError&) {
            continue; // The loading will say why.
        }
    }
    return std::nullopt;
}

} // namespace

void MemoryNeeds::add(std::uint64_t bytes, const Pcm& pcm)
{
    const std::uint64_t of16Bit = pcm.floats.empty() ? 1 : 2;
    const std::uint64_t channels = pcm.channels == 2 ? 2 : 1;
    asTheyAre_ += bytes;
    in16Bit_ += bytes / of16Bit;
    inMono_ += bytes / channels;
    in16BitMono_ += bytes / of16Bit / channels;
}

void MemoryNeeds::require(const Import& import) const
{
    const std::uint64_t available = import.memory->available();
    if (asTheyAre_ <= available)
        return;
    const std::string needs = fmt::format("needs about {} of memory, but only {} are free; ",
                                          memoryText(asTheyAre_), memoryText(available));
    if (in16Bit_ <= available)
        throw MemoryShortage(needs + "load it with 16 bits, which takes " + memoryText(in16Bit_));
    if (inMono_ <= available)
        throw MemoryShortage(needs + "load it in mono, which takes " + memoryText(inMono_));
    if (in16BitMono_ <= available)
        throw MemoryShortage(needs + "load it with 16 bits and in mono, which takes " +
                             memoryText(in16BitMono_));
    throw MemoryShortage(needs + "unload other instruments or close other programs");
}

std::uint64_t packedSize(const PipeOrgan& organ)
{
    std::uint64_t size = 0;
    for (const std::string& file : organ.files)
        size += organ.tree->size(file);
    return size;
}

void requireMemory(const PipeOrgan& organ, const Import& import)
{
    if (packedSize(organ) <= import.memory->available() / kGreatestRatio)
        return;

    MemoryNeeds needs;
    std::set<std::size_t> known;
    for (const PipeOrgan::Rank& rank : organ.ranks) {
        const std::vector<std::size_t> files = newFiles(rank, known);
        if (import.host.isCancelled())
            throw Cancelled{};
        const auto first = firstSound(organ, files, import);
        if (!first)
            continue;
        const auto& [pcm, size] = *first;
        const double ratio = static_cast<double>(pcm.bytes()) / static_cast<double>(size);
        for (const std::size_t file : files)
            needs.add(static_cast<std::uint64_t>(
                          ratio * static_cast<double>(organ.tree->size(organ.files[file]))),
                      pcm);
    }
    needs.require(import);
}

} // namespace velmora
