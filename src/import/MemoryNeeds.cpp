#include "import/MemoryNeeds.h"

#include "audio/AudioFileDecoder.h"
#include "base/FormatError.h"
#include "import/Import.h"
#include "import/VoiceList.h"
#include "import/openingStops.h"

#include <spdlog/fmt/fmt.h>

#include <optional>
#include <set>

namespace velmora {

namespace {

/// Decoding makes no file more than so many times as large, except for silence.
constexpr std::uint64_t kGreatestRatio = 16;

/// Returns the files of a rank that are not in `known`, and adds them to that.
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

/// Returns what each file of the ranks that are to be loaded needs.
std::vector<MemoryNeeds> needsOfFiles(const PipeOrgan& organ, const std::vector<PlannedRank>& plan,
                                      const Import& import)
{
    std::vector<MemoryNeeds> needs(organ.files.size());
    std::set<std::size_t> known;
    for (const auto& [rank, state] : plan) {
        if (state != LoadState::Loading)
            continue;
        if (import.host.isCancelled())
            throw Cancelled{};
        const std::vector<std::size_t> files = newFiles(organ.ranks[rank], known);
        const auto first = firstSound(organ, files, import);
        if (!first)
            continue;
        const auto& [pcm, size] = *first;
        const double ratio = static_cast<double>(pcm.bytes()) / static_cast<double>(size);
        for (const std::size_t file : files)
            needs[file].add(static_cast<std::uint64_t>(
                                ratio * static_cast<double>(organ.tree->size(organ.files[file]))),
                            pcm);
    }
    return needs;
}

/// The files of some ranks of an organ, each only once, and what they need.
class LoadedFiles {
public:
    /// Both must outlive this. `needs` is that of each file.
    LoadedFiles(const PipeOrgan& organ, const std::vector<MemoryNeeds>& needs)
        : organ_(&organ), needsOfFiles_(&needs)
    {
    }

    void add(std::size_t rank)
    {
        for (const std::size_t file : newFiles(organ_->ranks[rank], files_))
            needs_.add((*needsOfFiles_)[file]);
    }

    const MemoryNeeds& needs() const { return needs_; }

private:
    const PipeOrgan* organ_;
    const std::vector<MemoryNeeds>* needsOfFiles_;
    std::set<std::size_t> files_;
    MemoryNeeds needs_;
};

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

void MemoryNeeds::add(const MemoryNeeds& other)
{
    asTheyAre_ += other.asTheyAre_;
    in16Bit_ += other.in16Bit_;
    inMono_ += other.inMono_;
    in16BitMono_ += other.in16BitMono_;
}

void MemoryNeeds::require(const Import& import, const std::vector<ImportOptions>& fewer) const
{
    const std::uint64_t available = import.memory->available();
    if (asTheyAre_ <= available)
        return;
    std::vector<ImportOptions> fitting;
    std::string offer;
    const auto consider = [&](bool to16Bit, bool toMono, std::uint64_t bytes, const char* how) {
        if (!fitting.empty() || bytes > available)
            return;
        fitting.push_back(import.options);
        fitting.back().to16Bit |= to16Bit;
        fitting.back().toMono |= toMono;
        offer = fmt::format("load it {}, which takes {}", how, memoryText(bytes));
    };
    consider(true, false, in16Bit_, "with 16 bits");
    consider(false, true, inMono_, "in mono");
    consider(true, true, in16BitMono_, "with 16 bits and in mono");
    if (fitting.empty())
        offer = fewer.empty() ? "unload other instruments or close other programs"
                              : "load fewer of its stops";
    fitting.insert(fitting.end(), fewer.begin(), fewer.end());
    throw TooLarge(fmt::format("needs about {} of memory, but only {} are free; {}",
                               memoryText(asTheyAre_), memoryText(available), offer),
                   std::move(fitting));
}

std::uint64_t packedSize(const PipeOrgan& organ)
{
    std::uint64_t size = 0;
    for (const std::string& file : organ.files)
        size += organ.tree->size(file);
    return size;
}

std::vector<PlannedRank> planRanks(const PipeOrgan& organ, const Import& import)
{
    const StopsToLoad stops = import.options.stops;
    const std::set<std::size_t> drawn = ranksOfDrawnStops(organ.console);
    std::vector<PlannedRank> plan;
    for (const std::size_t rank : orderOfRanks(organ)) {
        const bool isWanted = stops != StopsToLoad::Drawn || drawn.empty() || drawn.contains(rank);
        plan.emplace_back(rank, isWanted ? LoadState::Loading : LoadState::Unwanted);
    }
    const std::uint64_t available = import.memory->available();
    if (packedSize(organ) <= available / kGreatestRatio)
        return plan;

    const std::vector<MemoryNeeds> files = needsOfFiles(organ, plan, import);
    LoadedFiles wanted(organ, files), ofDrawn(organ, files), fitting(organ, files);
    bool anyFits = false;
    for (auto& [rank, state] : plan) {
        if (state != LoadState::Loading)
            continue;
        wanted.add(rank);
        if (drawn.contains(rank))
            ofDrawn.add(rank);
        LoadedFiles more = fitting;
        more.add(rank);
        const bool fits = more.needs().asTheyAre() <= available;
        if (fits)
            fitting = more;
        else if (stops == StopsToLoad::Fitting)
            state = LoadState::TooLarge;
        anyFits = anyFits || fits;
    }
    std::vector<ImportOptions> fewer;
    const auto offer = [&](StopsToLoad choice) {
        fewer.push_back(import.options);
        fewer.back().stops = choice;
    };
    if (stops == StopsToLoad::All && ofDrawn.needs().asTheyAre() <= available)
        offer(StopsToLoad::Drawn);
    if (stops != StopsToLoad::Fitting && anyFits)
        offer(StopsToLoad::Fitting);
    if (stops != StopsToLoad::Fitting || !anyFits)
        wanted.needs().require(import, fewer);
    return plan;
}

} // namespace velmora
