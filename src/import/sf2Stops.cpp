#include "base/FormatError.h"
#include "base/Text.h"
#include "import/BankSounds.h"
#include "import/Import.h"
#include "import/RIFF.h"
#include "import/bank.h"
#include "import/sf2.h"
#include "import/sf2Bank.h"
#include "import/sf2Points.h"
#include "import/sf2Zones.h"
#include "tuning/Temperament.h"

#include <spdlog/fmt/fmt.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace velmora {

namespace {

using sf2::Sides;
using sf2::Zone;

/// What two zones have in common if they can share a sound.
auto placeOf(const Sides& sides)
{
    const auto side = [](const Zone& zone) {
        return std::tuple(zone.mode, zone.begin, zone.end, zone.loopBegin, zone.loopEnd, zone.rate);
    };
    return std::pair(side(sides.left),
                     sides.right ? std::optional(side(*sides.right)) : std::nullopt);
}

using Place = decltype(placeOf(std::declval<Sides>()));

/// Makes stops of the instruments of a bank.
class StopMaker {
public:
    StopMaker(const sf2::Bank& bank, Import& import) : bank_(bank), import_(import)
    {
        std::set<Place> places;
        std::uint64_t bytes = 0;
        for (std::size_t i = 0; i + 1 < bank.instruments.size(); ++i) {
            stops_.push_back(resolved(i));
            for (const Sides& sides : heardOf(stops_.back()))
                if (places.insert(placeOf(sides)).second)
                    bytes += sf2::bytesOf(bank, sides, import.options);
        }
        bank::requireMemory(bytes, bank.pool.length(), import);
    }

    /// Loads the sounds. Each is held once.
    void make()
    {
        import_.host.startProgress(static_cast<long>(stops_.size()));
        for (const Stop& stop : stops_) {
            if (import_.host.isCancelled())
                throw Cancelled{};
            make(stop);
            import_.host.updateProgress(1, stop.name);
        }
    }

private:
    /// An instrument of the bank.
    struct Stop {
        std::string name;
        std::vector<Sides> zones;
    };

    Stop resolved(std::size_t instrument)
    {
        Stop stop;
        stop.name = toUtf8(sf2::fieldText(bank_.instruments[instrument].achInstName));
        std::vector<std::string> reasons;
        stop.zones = sf2::joinSides(bank_, sf2::zonesOf(bank_, instrument, reasons));
        for (std::string& reason : reasons)
            import_.report.skipped.emplace_back(stop.name, std::move(reason));
        return stop;
    }

    /// Returns the zones of a stop that sound on any key, and reports the others.
    std::vector<Sides> heardOf(const Stop& stop)
    {
        std::vector<bool> isHeard(stop.zones.size());
        for (int key = 0; key <= kLastKey; ++key)
            for (const sf2::Layer& layer : sf2::layersOf(stop.zones, key))
                isHeard[layer.zone] = true;
        std::vector<Sides> heard;
        for (std::size_t i = 0; i < stop.zones.size(); ++i)
            if (isHeard[i])
                heard.push_back(stop.zones[i]);
        if (const std::size_t rest = stop.zones.size() - heard.size(); rest > 0)
            import_.report.skipped.emplace_back(
                stop.name,
                fmt::format("a stop sounds one sample for each key and velocity; {} left "
                            "out",
                            rest == 1 ? "1 layer is" : fmt::format("{} layers are", rest)));
        return heard;
    }

    void make(const Stop& stop)
    {
        InstrumentStop& made = import_.instrument->appendStop(stop.name);
        for (int key = 0; key <= kLastKey; ++key) {
            std::vector<BankLayer> layers;
            const Sides* first = nullptr;
            for (const sf2::Layer& layer : sf2::layersOf(stop.zones, key)) {
                const Sides& sides = stop.zones[layer.zone];
                const BankSound* sound = soundOf(sides);
                if (sound == nullptr)
                    continue;
                layers.push_back({*sound, rootOf(sides.left, key), gainOf(sides.left.decibels),
                                  layer.softest, layer.loudest});
                first = first ? first : &sides;
            }
            Sample& sample = made.samples[static_cast<std::size_t>(key)];
            setKey(sample, layers, {});
            if (first != nullptr)
                setCharacter(sample, first->left, key);
        }
    }

    /// Returns the pitch of the sound as recorded, in hertz, if a key sounds as the bank says.
    static double rootOf(const Zone& zone, int key)
    {
        return equal.getPitch(static_cast<unsigned long>(key)) *
               std::exp2(-zone.centsOf(key) / 1200.0);
    }

    static void setCharacter(Sample& sample, const Zone& zone, int key)
    {
        if (zone.centsPerKey == 0 || zone.pitchOf)
            sample.fixPitch(equal.getPitch(static_cast<unsigned long>(key)));
        const double seconds = (zone.end - zone.begin) / std::max(zone.rate, 1.0);
        if (zone.mode == Zone::Mode::Once && zone.releaseSeconds >= seconds)
            sample.setPercussive();
    }

    /// Returns the sound of a zone, which is loaded if it is not yet; null if it cannot be played.
    const BankSound* soundOf(const Sides& sides)
    {
        const auto [found, isNew] = sounds_.try_emplace(placeOf(sides));
        if (isNew)
            found->second = load(sides);
        return found->second ? &*found->second : nullptr;
    }

    std::optional<BankSound> load(const Sides& sides)
    {
        const std::string name =
            toUtf8(sf2::fieldText(bank_.samples[sides.left.sample].achSampleName));
        const Zone& leader = sides.leader();
        PipeRecording recording;
        recording.pitch = hertzOf(sides.left.root - sides.left.cents / 100.0);
        if (leader.mode != Zone::Mode::Once)
            recording.loops = {{leader.loopBegin - leader.begin, leader.loopEnd - leader.begin}};
        recording.hasOwnRelease = leader.mode == Zone::Mode::LoopWhileHeld;
        try {
            recording.pcm = sf2::readPoints(bank_, sides, import_.options);
            return addBankSound(std::move(recording), name, nullptr, import_);
        } catch (const FormatError& error) {
            import_.report.skipped.emplace_back(name, error.what());
            return std::nullopt;
        }
    }

    const sf2::Bank& bank_;
    Import& import_;
    std::vector<Stop> stops_;
    std::map<Place, std::optional<BankSound>> sounds_;
};

} // namespace

void readSoundFontStops(const std::filesystem::path& path, Import& import)
{
    readSoundFontStops(RIFF::File(path), import);
}

void readSoundFontStops(const RIFF::File& file, Import& import)
{
    const sf2::Bank bank = sf2::readBank(file);
    StopMaker(bank, import).make();
    import.name = bank.name;
    bank::finish(import);
}

} // namespace velmora
