#include "base/FormatError.h"
#include "base/Text.h"
#include "import/BankSounds.h"
#include "import/Import.h"
#include "import/RIFF.h"
#include "import/bank.h"
#include "import/gig.h"
#include "import/gigRegions.h"
#include "import/gigWaves.h"

#include <spdlog/fmt/fmt.h>

#include <algorithm>
#include <iterator>
#include <string>
#include <vector>

namespace velmora {

namespace {

using RIFF::code;

std::vector<gig::Region> regionsOf(const RIFF::List& instrument)
{
    std::vector<gig::Region> regions;
    if (const auto* list = instrument.get<RIFF::List>(code("lrgn")))
        for (const RIFF::List* region : list->all<RIFF::List>(code("rgn ")))
            if (region != nullptr)
                regions.push_back(gig::readRegion(*region));
    return regions;
}

std::string nameOf(const RIFF::List& instrument, std::size_t position)
{
    const auto* info = instrument.get<RIFF::List>(code("INFO"));
    const std::string name = RIFF::readText(info ? info->get<RIFF::Chunk>(code("INAM")) : nullptr);
    return name.empty() ? fmt::format("Instrument {}", position + 1) : name;
}

/// Lays the regions of an instrument on the keys of its stops.
class Layers {
public:
    Layers(gig::Waves& waves, Import& import) : waves_(waves), import_(import) {}

    /// Adds what a region sounds in one of its layers to the stop of that layer.
    void lay(const gig::Region& region, std::size_t layer)
    {
        std::vector<gig::Recording> recordings;
        std::ranges::copy_if(region.recordings, std::back_inserter(recordings),
                             [layer](const auto& one) { return one.layer == layer; });
        // A release sounds on the device of what it follows.
        const bool hasReleases = std::ranges::any_of(recordings, &gig::Recording::isRelease);
        for (const gig::Recording& recording : recordings) {
            // The releases of a key are chosen by how long it was held and not by its velocity.
            constexpr int kMiddle = 64;
            if (recording.isRelease && (!releases_.empty() || recording.loudest < kMiddle))
                continue;
            add(recording, hasReleases);
        }
        if (!attacks_.empty())
            setKeys(region, import_.instrument->stops()[layer], recordings.front().followsKeys);
        attacks_.clear();
        releases_.clear();
    }

private:
    void add(const gig::Recording& recording, bool hasReleases)
    {
        const gig::Tuning tuning = waves_.tuningOf(recording);
        const BankSound* sound = waves_.get(recording, tuning, hasReleases ? beside_ : nullptr);
        if (sound == nullptr)
            return;
        if (hasReleases)
            beside_ = sound->attack;
        (recording.isRelease ? releases_ : attacks_)
            .push_back({*sound, rootPitchOf(tuning.root), gainOf(tuning.decibels),
                        recording.softest, recording.loudest});
    }

    void setKeys(const gig::Region& region, InstrumentStop& stop, bool followsKeys)
    {
        for (int key = region.lowestKey; key <= region.highestKey; ++key) {
            Sample& sample = stop.samples[static_cast<std::size_t>(key)];
            if (sample.source() != 0)
                continue;
            setKey(sample, attacks_, releases_);
            if (!followsKeys)
                sample.fixPitch(attacks_.front().rootPitch);
        }
    }

    gig::Waves& waves_;
    Import& import_;
    const Sound* beside_ = nullptr;
    std::vector<BankLayer> attacks_; ///< Of the region that is laid.
    std::vector<BankLayer> releases_;
};

void readRegions(const std::vector<gig::Region>& regions, const std::string& name,
                 gig::Waves& waves, Import& import)
{
    std::size_t count = 1;
    for (const gig::Region& region : regions)
        for (const gig::Recording& recording : region.recordings)
            count = std::max(count, recording.layer + 1);
    for (std::size_t layer = 0; layer < count; ++layer)
        import.instrument->appendStop(layer == 0 ? name
                                                 : fmt::format("{}, layer {}", name, layer + 1));
    Layers layers(waves, import);
    import.host.startProgress(static_cast<long>(regions.size()));
    for (const gig::Region& region : regions) {
        if (import.host.isCancelled())
            throw Cancelled{};
        for (std::size_t i = 0; i < count; ++i)
            layers.lay(region, i);
        import.host.updateProgress(1,
                                   fmt::format("Keys {}–{}", region.lowestKey, region.highestKey));
    }
}

} // namespace

void readGigaInstrument(const std::filesystem::path& path, Import& import)
{
    readGigaInstrument(RIFF::File(path), import);
}

void readGigaInstrument(const RIFF::File& file, Import& import)
{
    file.check();
    gig::Waves waves(file, import);
    const auto& list = bank::require<RIFF::List>(file, "lins");
    std::vector<const RIFF::List*> instruments = list.all<RIFF::List>(code("ins "));
    std::erase(instruments, nullptr);
    for (std::size_t i = 0; i < instruments.size(); ++i)
        import.choices.push_back(nameOf(*instruments[i], i));
    const std::size_t choice = import.options.choice;
    if (choice >= instruments.size())
        throw FormatError(instruments.empty()
                              ? "has no instruments"
                              : fmt::format("has only {}, and instrument {} was chosen",
                                            counted(instruments.size(), "instrument"), choice + 1));
    import.name = import.choices[choice];
    readRegions(regionsOf(*instruments[choice]), import.name, waves, import);
    bank::finish(import);
    for (InstrumentStop& stop : import.instrument->stops())
        stop.volume = import.instrument->stops().front().volume;
}

} // namespace velmora
