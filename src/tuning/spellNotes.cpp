#include "tuning/spellNotes.h"

#include "tuning/Temperament.h"
#include "tuning/Tunable.h"

#include <algorithm>
#include <cstddef>
#include <tuple>

namespace velmora {

namespace {

class Silence : public Tunable {
public:
    void play(int /*key*/, float /*velocity*/) override {}
    void tune(const Temperament& /*temperament*/, int /*lo*/, int /*hi*/) override {}
};

/// The shortest time that a key sounds, so that it ends after it has started.
constexpr double kShortest = 1e-6;

struct Moment {
    double time;
    bool starts; ///< A key that ends comes before one that starts at the same time.
    std::size_t index;
};

} // namespace

std::vector<std::optional<int>> spellNotes(std::span<const TimedKey> keys, Temperament& temperament)
{
    std::vector<Moment> moments;
    for (std::size_t i = 0; i < keys.size(); ++i) {
        moments.push_back({keys[i].start, true, i});
        moments.push_back({std::max(keys[i].end, keys[i].start + kShortest), false, i});
    }
    std::ranges::sort(moments, {}, [](const Moment& moment) {
        return std::tuple(moment.time, moment.starts, moment.index);
    });
    Silence silence;
    std::vector<std::optional<int>> places(keys.size());
    for (const Moment& moment : moments) {
        const auto key = static_cast<unsigned char>(keys[moment.index].key);
        temperament.setTime(moment.time);
        if (moment.starts) {
            temperament.setup(silence, key, 1.0F);
            places[moment.index] = temperament.place(key);
            continue;
        }
        // Until a key ends, it may have been spelled anew to fit its chord.
        places[moment.index] = temperament.place(key);
        temperament.release(key);
    }
    return places;
}

} // namespace velmora
