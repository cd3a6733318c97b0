#include "tuning/Scale.h"

namespace velmora {

double centsOf(const ScalePitch& pitch)
{
    return std::visit([](const Tuning& tuning) { return tuning.cent(); }, pitch);
}

double Scale::cents(int degree) const
{
    const int count = static_cast<int>(pitches.size());
    if (count == 0)
        return 0.0;
    const int index = (degree % count + count) % count;
    const int periods = (degree - index) / count;
    const double within = index == 0 ? 0.0 : centsOf(pitches[static_cast<std::size_t>(index) - 1]);
    return periods * period() + within;
}

} // namespace velmora
