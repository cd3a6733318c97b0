#include "import/sf2.h"

#include "base/FormatError.h"
#include "base/Text.h"
#include "import/Import.h"
#include "import/RIFF.h"
#include "import/bank.h"
#include "import/sf2Bank.h"
#include "sound/ALInstrument.h"
#include "tuning/Temperament.h"

#include <al.h>
#include <spdlog/fmt/fmt.h>

#include <algorithm>
#include <array>

namespace velmora {

namespace {

using sf2::fieldText;
using sf2::sfInst;
using sf2::sfInstGenList;
using sf2::sfPresetBag;
using sf2::sfSample;

/// Loads samples into OpenAL, one at a time.
class SampleReader {
public:
    SampleReader(const RIFF::Chunk& pool, Import& import) : pool_(pool), import_(import) {}

    /// Loads a sample, or reports it as skipped if it cannot be played.
    void read(const sfSample& sample)
    {
        try {
            auto sound = soundOf(sample);
            import_.instrument->usage += sound->size();
            // See docs/decisions.md, 71.
            import_.instrument->sounds[fieldText(sample.achSampleName)] = std::move(sound);
        } catch (const FormatError& error) {
            import_.report.skipped.emplace_back(toUtf8(fieldText(sample.achSampleName)),
                                                error.what());
        }
    }

private:
    static constexpr std::size_t kPoint = sizeof(std::int16_t);

    std::unique_ptr<Sound> soundOf(const sfSample& sample)
    {
        const std::size_t points = pool_.length() / kPoint;
        if (sample.dwStart >= points)
            throw FormatError("the file does not contain its data");
        const std::size_t end = std::min<std::size_t>(sample.dwEnd, points);
        std::size_t count = end > sample.dwStart ? end - sample.dwStart : 0;
        if (buffer_.size() < count)
            buffer_.resize(count);
        const auto destination = std::as_writable_bytes(std::span(buffer_).first(count));
        count = pool_.read(sample.dwStart * kPoint, destination) / kPoint;

        // Linked and ROM samples are always played as two interleaved channels.
        // See docs/decisions.md, 70.
        constexpr unsigned kLinkedOrRom = 0x8008;
        const bool stereo = (sample.sfSampleType & kLinkedOrRom) != 0;
        if (stereo)
            count -= count % 2;
        if (count == 0)
            throw FormatError("is empty");
        return std::make_unique<Sound>(import_.instrument->renderer(),
                                       std::span(buffer_).first(count),
                                       stereo ? AL_FORMAT_STEREO16 : AL_FORMAT_MONO16,
                                       static_cast<double>(sample.dwSampleRate));
    }

    const RIFF::Chunk& pool_;
    Import& import_;
    std::vector<std::int16_t> buffer_; ///< Reused; as large as the longest sample.
};

void readSamples(const std::vector<sfSample>& samples, const RIFF::Chunk& pool, Import& import)
{
    const std::size_t count = samples.size() - 1;
    bank::requireMemory(sf2::bytesOf(samples, pool.length()), pool.length(), import);
    const auto step = static_cast<unsigned>(samples.size() / 2 / 25 + 1);
    import.host.startProgress(static_cast<long>(count));
    SampleReader reader(pool, import);
    for (std::size_t i = 0; i < count; ++i) {
        if (import.host.isCancelled())
            throw Cancelled{};
        reader.read(samples[i]);
        if ((i + 1) % step == 0)
            import.host.updateProgress(step, toUtf8(fieldText(samples[i].achSampleName)));
    }
    bank::reportDone(count % step, fmt::format("Done: {} samples", count), import);
}

/// The sound of a key of an instrument.
struct KeySound {
    const Sound* sound = nullptr;
    unsigned long root = 0; ///< MIDI key.
};

/// Assigns the zones of instruments to the keys of stops.
class ZoneReader {
public:
    ZoneReader(const sf2::Bank& bank, Import& import)
        : samples_(bank.samples), bags_(bank.bags), generators_(bank.generators), import_(import)
    {
        sounds_.reserve(samples_.size() - 1);
        std::for_each(samples_.begin(), samples_.end() - 1, [this](const sfSample& sample) {
            const auto found = import_.instrument->sounds.find(fieldText(sample.achSampleName));
            sounds_.push_back(found == import_.instrument->sounds.end() ? nullptr
                                                                        : found->second.get());
        });
    }

    /// Adds a stop for an instrument with the zones from `first` up to, not including, `last`.
    void read(const sfInst& instrument, std::size_t first, std::size_t last)
    {
        std::array<KeySound, kKeys> keys;
        // The last zone record is a terminator.
        for (std::size_t zone = first; zone < last && zone + 1 < bags_.size(); ++zone)
            readZone(instrument, zone, keys);

        InstrumentStop& stop =
            import_.instrument->appendStop(toUtf8(fieldText(instrument.achInstName)));
        for (std::size_t key = 0; key < kKeys; ++key) {
            const auto [sound, root] = keys[key];
            if (sound != nullptr)
                stop.samples[key].setBuffer(*sound, equal.getPitch(root));
        }
    }

private:
    void readZone(const sfInst& instrument, std::size_t zone, std::array<KeySound, kKeys>& keys)
    {
        constexpr std::uint16_t kKeyRange = 43;
        constexpr std::uint16_t kSampleId = 53;
        constexpr std::uint16_t kOverridingRootKey = 58;
        // See docs/decisions.md, 68.
        std::size_t lo = 0;
        std::size_t hi = 0;
        std::size_t sample = 0;
        unsigned long root = 0;
        const std::size_t end = std::min<std::size_t>(bags_[zone + 1].wGenNdx, generators_.size());
        for (std::size_t i = bags_[zone].wGenNdx; i < end; ++i) {
            // See docs/decisions.md, 29.
            const sfInstGenList& generator = generators_[i];
            if (generator.sfGenOper == kKeyRange) {
                lo = generator.lo;
                hi = generator.hi;
            } else if (generator.sfGenOper == kSampleId) {
                sample = generator.word();
            } else if (generator.sfGenOper == kOverridingRootKey) {
                root = generator.lo;
            }
        }
        if (sample >= sounds_.size()) {
            import_.report.skipped.emplace_back(
                toUtf8(fieldText(instrument.achInstName)),
                fmt::format("it refers to sample {}, but there are only {}", sample + 1,
                            sounds_.size()));
            return;
        }
        if (sounds_[sample] == nullptr)
            return;
        // See docs/decisions.md, 69.
        if (root == 0)
            root = samples_[sample].byOriginalPitch;
        for (std::size_t key = lo; key <= hi && key < kKeys; ++key)
            keys[key] = {sounds_[sample], root};
    }

    const std::vector<sfSample>& samples_;
    std::vector<const Sound*> sounds_; ///< By sample; null for skipped ones.
    const std::vector<sfPresetBag>& bags_;
    const std::vector<sfInstGenList>& generators_;
    Import& import_;
};

} // namespace

void readSoundFont(const std::filesystem::path& path, Import& import)
{
    readSoundFont(RIFF::File(path), import);
}

void readSoundFont(const RIFF::File& file, Import& import)
{
    const sf2::Bank bank = sf2::readBank(file);
    readSamples(bank.samples, bank.pool, import);
    ZoneReader zones(bank, import);
    const auto& instruments = bank.instruments;
    for (std::size_t i = 0; i + 1 < instruments.size(); ++i)
        // See docs/decisions.md, 67.
        zones.read(instruments[i], instruments[i].wInstBagNdx, instruments[i + 1].wInstBagNdx);
    import.name = bank.name;
    bank::finish(import);
}

} // namespace velmora
