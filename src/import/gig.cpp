#include "import/gig.h"

#include "audio/AudioFileDecoder.h"
#include "base/FormatError.h"
#include "base/Log.h"
#include "import/Import.h"
#include "import/RIFF.h"
#include "import/bank.h"
#include "sound/ALInstrument.h"
#include "tuning/Temperament.h"

#include <spdlog/fmt/fmt.h>

#include <optional>
#include <type_traits>

namespace velmora {

namespace {

/// Returns the number at an offset in the data of a chunk, or nothing if the data ends first.
template <class Integer> std::optional<Integer> numberAt(const RIFF::Chunk& chunk, std::size_t at)
{
    Integer result = 0;
    if (chunk.read(at, std::as_writable_bytes(std::span(&result, 1))) < sizeof(Integer))
        return std::nullopt;
    return result;
}

/// Logs the articulation of an instrument. It is not applied to the sound, but the log shows what a
/// bank asks for when it sounds different elsewhere.
/// See docs/decisions.md, 74.
void logArticulation(const RIFF::List& instrument)
{
    const Logger log = logger("import");
    const auto* articulations = instrument.get<RIFF::List>(RIFF::code("lart"));
    log.debug("lart {}", fmt::ptr(articulations));
    if (articulations == nullptr)
        return;
    const auto* chunk = articulations->get<RIFF::Chunk>(RIFF::code("3ewg"));
    log.debug("_3ewg {}", fmt::ptr(chunk));
    if (chunk == nullptr)
        return;
    log.debug("EffectSend = {}", numberAt<std::uint16_t>(*chunk, 0).value_or(0));
    log.debug("Attenuation = {}", numberAt<std::int32_t>(*chunk, 2).value_or(0));
    log.debug("FineTune = {}", numberAt<std::int16_t>(*chunk, 6).value_or(0));
    log.debug("PitchbendRange = {}", numberAt<std::uint16_t>(*chunk, 8).value_or(0));
    log.debug("dimkeystart = {}", numberAt<std::uint8_t>(*chunk, 10).value_or(0));
    log.debug("DimensionKeyRange.high = {}", numberAt<std::uint8_t>(*chunk, 11).value_or(0));
    constexpr std::uint32_t kSizeWithoutIds = 32;
    if (chunk->size() > kSizeWithoutIds) {
        log.debug("id0 = {}", numberAt<std::uint8_t>(*chunk, 32).value_or(0));
        log.debug("id1 = {}", numberAt<std::uint8_t>(*chunk, 33).value_or(0));
    } else {
        log.debug("{}", chunk->size());
    }
}

/// Decodes a wave. Its list becomes a complete WAVE file when its header is replaced.
std::unique_ptr<Sound> readWave(const RIFF::List* wave, std::vector<std::byte>& image,
                                const Import& import)
{
    if (wave == nullptr)
        throw FormatError("is not a list of chunks");
    constexpr std::size_t kHead = 12;
    image.resize(kHead + wave->length());
    image.resize(kHead + wave->read(0, std::span(image).subspan(kHead)));
    const std::uint32_t head[] = {RIFF::code("RIFF"), wave->size(), RIFF::code("WAVE")};
    static_assert(sizeof(head) == kHead);
    std::ranges::copy(std::as_bytes(std::span(head)), image.begin());
    return std::make_unique<Sound>(import.instrument->renderer(),
                                   decodeAudio(image, import.decoding()));
}

void readWaves(const std::vector<const RIFF::List*>& waves, Import& import)
{
    constexpr std::size_t kStep = 5;
    import.host.startProgress(static_cast<long>(waves.size()));
    std::vector<std::byte> image; // reused for every wave
    std::size_t count = 0;
    for (const RIFF::List* wave : waves) {
        if (import.host.isCancelled())
            throw Cancelled{};
        const std::string name = std::to_string(count);
        try {
            auto sound = readWave(wave, image, import);
            import.instrument->usage += sound->size();
            import.instrument->sounds[name] = std::move(sound);
        } catch (const FormatError& error) {
            import.report.skipped.emplace_back("wave " + name, error.what());
        }
        ++count;
        if (count % kStep == 0)
            import.host.updateProgress(kStep, fmt::format("Sample {}", count));
    }
    bank::reportDone(count % kStep, fmt::format("Done: {} waves", count), import);
}

/// Assigns the regions of instruments to the keys of stops.
class RegionReader {
public:
    // See docs/decisions.md, 73.
    RegionReader(const gig::version& version, Import& import)
        : waveIndexAt_(version.major() == 3 ? 68 : 44), import_(import)
    {
    }

    void read(const RIFF::List& instrument, const std::string& name)
    {
        InstrumentStop& stop = import_.instrument->appendStop(name);
        logArticulation(instrument);
        const auto* regions = instrument.get<RIFF::List>(RIFF::code("lrgn"));
        if (regions == nullptr)
            return;
        // See docs/decisions.md, 72.
        constexpr std::size_t kFirstKey = 21;
        std::size_t key = kFirstKey;
        for (const RIFF::List* region : regions->all<RIFF::List>(RIFF::code("rgn "))) {
            const auto* links = region ? region->get<RIFF::Chunk>(RIFF::code("3lnk")) : nullptr;
            if (links == nullptr || key >= kKeys)
                continue;
            readRegion(*links, stop, key);
            ++key;
        }
    }

private:
    void readRegion(const RIFF::Chunk& links, InstrumentStop& stop, std::size_t key)
    {
        const auto index = numberAt<std::uint32_t>(links, waveIndexAt_);
        const auto& sounds = import_.instrument->sounds;
        const auto found = index ? sounds.find(std::to_string(*index)) : sounds.end();
        if (found != sounds.end()) {
            stop.samples[key].setBuffer(*found->second, equal.getPitch(key));
        } else {
            import_.report.skipped.emplace_back(
                stop.name, fmt::format("the region on key {} has no wave", key));
        }
    }

    std::size_t waveIndexAt_;
    Import& import_;
};

std::string nameOf(const RIFF::List& instrument)
{
    const auto* info = instrument.get<RIFF::List>(RIFF::code("INFO"));
    return RIFF::readText(info ? info->get<RIFF::Chunk>(RIFF::code("INAM")) : nullptr);
}

} // namespace

gig::version::version(const RIFF::Chunk& chunk)
{
    chunk.read(0, std::as_writable_bytes(std::span(words)));
    logger("import").debug("gig::version {}", fmt::join(words, " "));
}

void readGigaSampler(const std::filesystem::path& path, Import& import)
{
    readGigaSampler(RIFF::File(path), import);
}

void readGigaSampler(const RIFF::File& file, Import& import)
{
    file.check();
    // See docs/decisions.md, 125. A null pointer in the log shows that a chunk is missing.
    const Logger log = logger("import");
    const auto* vers = file.get<RIFF::Chunk>(RIFF::code("vers"));
    log.debug("vers {}", fmt::ptr(vers));
    const gig::version version = vers ? gig::version(*vers) : gig::version();
    import.name = "gig";

    const auto& pool = bank::require<RIFF::List>(file, "wvpl");
    const auto& list = bank::require<RIFF::List>(file, "lins");
    const auto waves = pool.all<RIFF::List>(RIFF::code("wave"));
    readWaves(waves, import);

    const auto instruments = list.all<RIFF::List>(RIFF::code("ins "));
    log.debug("lins {}", fmt::ptr(&list));
    log.debug("ins {}", instruments.size());
    RegionReader regions(version, import);
    bool first = true;
    for (const RIFF::List* instrument : instruments) {
        if (instrument == nullptr)
            continue;
        const std::string name = nameOf(*instrument);
        if (std::exchange(first, false) && !name.empty())
            import.name = name;
        regions.read(*instrument, name);
    }
    bank::finish(import);
    log.debug("DONE {}", waves.size());
}

} // namespace velmora
