#include "platform/jackTime.h"

#include "base/Clock.h"

#include <cmath>
#include <cstdint>

namespace velmora {

namespace {

constexpr double kSecondsPerMicrosecond = 1e-6;

/// A period that seems to be further away than this, in seconds, has a wrong time.
constexpr double kPlausible = 1.0;

} // namespace

double jackPeriodStart(jack_client_t* client)
{
    jack_nframes_t firstFrame = 0;
    jack_time_t begin = 0, end = 0;
    float microseconds = 0.0F;
    double since = 0.0;
    // JACK's clock is not that of `getTime`, and they drift apart.
    if (jack_get_cycle_times(client, &firstFrame, &begin, &end, &microseconds) == 0)
        since = static_cast<double>(static_cast<std::int64_t>(jack_get_time() - begin)) *
                kSecondsPerMicrosecond;
    // In the first periods of a server, its times are arbitrary.
    return getTime() - (std::fabs(since) < kPlausible ? since : 0.0);
}

} // namespace velmora
