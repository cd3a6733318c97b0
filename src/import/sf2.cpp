#include "import/sf2.h"

#include "base/FormatError.h"
#include "base/Text.h"
#include "import/Import.h"
#include "import/RIFF.h"
#include "import/bank.h"
#include "sound/ALInstrument.h"
#include "tuning/Temperament.h"

#include <al.h>
#include <spdlog/fmt/fmt.h>

#include <algorithm>
#include <array>

namespace velmora {

namespace {

using sf2::sfInst;
using sf2::sfInstGenList;
using sf2::sfPresetBag;
using sf2::sfSample;

template <class Record>
std::vector<Record> readRecords(const RIFF::List& list, const char (&name)[5])
{
    return bank::require<RIFF::Chunk>(list, name).read<Record>();
}

/// The same where each record begins at an index into others and ends at that of the next record.
/// Indices that go back mark the bank as broken by the standard; a small file of such could also
/// ask for hours of work.
template <class Record> std::vector<Record>
readRecords(const RIFF::List& list, const char (&name)[5], std::uint16_t Record::*index)
{
    auto records = readRecords<Record>(list, name);
    const auto broken = std::adjacent_find(
        records.begin(), records.end(),
        [index](const auto& one, const auto& next) { return next.*index < one.*index; });
    if (broken != records.end())
        throw FormatError::atByte(bank::require<RIFF::Chunk>(list, name).offset,
                                  fmt::format("the indices of \"{}\" go back", name));
    return records;
}

/// A text field up to its first NUL byte.
std::string fieldText(std::span<const char> field)
{
    return {field.begin(), std::find(field.begin(), field.end(), '\0')};
}

/// Reads the sounds of the samples one by one, each straight into OpenAL.
class SampleReader {
public:
    SampleReader(const RIFF::Chunk& pool, Import& import) : pool_(pool), import_(import) {}

    /// Reads the sound of a sample; one that cannot be played is reported.
    void read(const sfSample& sample)
    {
        try {
            auto sound = soundOf(sample);
            import_.instrument->usage += sound->size();
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
            throw FormatError("its data is not in the file");
        const std::size_t end = std::min<std::size_t>(sample.dwEnd, points);
        std::size_t count = end > sample.dwStart ? end - sample.dwStart : 0;
        if (buffer_.size() < count)
            buffer_.resize(count);
        const auto destination = std::as_writable_bytes(std::span(buffer_).first(count));
        count = pool_.read(sample.dwStart * kPoint, destination) / kPoint;

        // Linked and ROM samples are played as two interleaved channels, whatever they hold.
        constexpr unsigned kLinkedOrRom = 0x8008;
        const bool stereo = (sample.sfSampleType & kLinkedOrRom) != 0;
        if (stereo)
            count -= count % 2;
        if (count == 0)
            throw FormatError("is empty");
        return std::make_unique<Sound>(std::span(buffer_).first(count),
                                       stereo ? AL_FORMAT_STEREO16 : AL_FORMAT_MONO16,
                                       static_cast<double>(sample.dwSampleRate));
    }

    const RIFF::Chunk& pool_;
    Import& import_;
    std::vector<std::int16_t> buffer_; // reused: it keeps the size of the longest sample
};

void readSamples(const std::vector<sfSample>& samples, const RIFF::Chunk& pool, Import& import)
{
    const std::size_t count = samples.size() - 1;
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
    import.host.updateProgress(static_cast<unsigned>(count % step), "Done %k");
}

/// What a key of an instrument plays.
struct KeySound {
    const Sound* sound = nullptr;
    unsigned long root = 0; // MIDI key
};

/// Lays the zones of the instruments on the keys of stops.
class ZoneReader {
public:
    ZoneReader(const std::vector<sfSample>& samples, const RIFF::List& pdta, Import& import)
        : samples_(samples), bags_(readRecords(pdta, "ibag", &sfPresetBag::wGenNdx)),
          generators_(readRecords<sfInstGenList>(pdta, "igen")), import_(import)
    {
        sounds_.reserve(samples.size() - 1);
        std::for_each(samples.begin(), samples.end() - 1, [this](const sfSample& sample) {
            const auto found = import_.instrument->sounds.find(fieldText(sample.achSampleName));
            sounds_.push_back(found == import_.instrument->sounds.end() ? nullptr
                                                                        : found->second.get());
        });
    }

    /// Adds the stop of an instrument with the zones from `first` up to `last`, exclusive.
    void read(const sfInst& instrument, std::size_t first, std::size_t last)
    {
        std::array<KeySound, kKeys> keys;
        // The last zone only ends the one before it.
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
        std::size_t lo = 0;
        std::size_t hi = 0;
        std::size_t sample = 0;
        unsigned long root = 0;
        const std::size_t end = std::min<std::size_t>(bags_[zone + 1].wGenNdx, generators_.size());
        for (std::size_t i = bags_[zone].wGenNdx; i < end; ++i) {
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
                fmt::format("it names sample {} of {}", sample + 1, sounds_.size()));
            return;
        }
        if (sounds_[sample] == nullptr)
            return;
        if (root == 0)
            root = samples_[sample].byOriginalPitch;
        for (std::size_t key = lo; key <= hi && key < kKeys; ++key)
            keys[key] = {sounds_[sample], root};
    }

    const std::vector<sfSample>& samples_;
    std::vector<const Sound*> sounds_; // of each sample, by its name; null where it was left out
    std::vector<sfPresetBag> bags_;
    std::vector<sfInstGenList> generators_;
    Import& import_;
};

} // namespace

void readSoundFont(const std::filesystem::path& path, Import& import)
{
    readSoundFont(RIFF::File(path), import);
}

void readSoundFont(const RIFF::File& file, Import& import)
{
    file.check();
    const auto& pool = bank::require<RIFF::Chunk>(bank::require<RIFF::List>(file, "sdta"), "smpl");
    const auto& pdta = bank::require<RIFF::List>(file, "pdta");
    const auto& info = bank::require<RIFF::List>(file, "INFO");
    const auto samples = readRecords<sfSample>(pdta, "shdr");
    const auto instruments = readRecords(pdta, "inst", &sfInst::wInstBagNdx);
    if (samples.size() < 2 || instruments.size() < 2)
        throw FormatError("holds no instruments");

    readSamples(samples, pool, import);
    ZoneReader zones(samples, pdta, import);
    for (std::size_t i = 0; i + 1 < instruments.size(); ++i)
        zones.read(instruments[i], instruments[i].wInstBagNdx, instruments[i + 1].wInstBagNdx);
    import.name = RIFF::readText(info.get<RIFF::Chunk>(RIFF::code("INAM")));
    bank::finish(import);
}

} // namespace velmora
