#include "sound/InstrumentStop.h"

#include "tuning/Temperament.h"

#include <algorithm>

namespace velmora {

void InstrumentStop::extend(int key, const Sound& sound, double rootPitch)
{
    const auto slot = static_cast<std::size_t>(key);
    samples.at(slot).setBuffer(sound, rootPitch);
    extended.set(slot);
}

std::size_t InstrumentStop::keysWithSamples() const
{
    return static_cast<std::size_t>(
        std::ranges::count_if(samples, [](const Sample& sample) { return sample.source() != 0; }));
}

void InstrumentStop::tune(const Temperament& temperament, int lo, int hi)
{
    for (int key = lo; key <= hi; ++key) {
        const auto slot = static_cast<std::size_t>(key);
        samples[slot].tune(temperament.getPitch(slot));
    }
}

} // namespace velmora
