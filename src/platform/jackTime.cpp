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

JackPeriod jackPeriod(jack_client_t* client)
{
    jack_nframes_t firstFrame = 0;
    jack_time_t begin = 0, end = 0;
    float microseconds = 0.0F;
    const int error = jack_get_cycle_times(client, &firstFrame, &begin, &end, &microseconds);
    // JACK's clock is not that of `getTime`, and they drift apart.
    const jack_time_t here = jack_get_time();
    const double now = getTime();
    const auto secondsFromNow = [&](jack_time_t time) {
        return static_cast<double>(static_cast<std::int64_t>(time - here)) * kSecondsPerMicrosecond;
    };
    // In the first periods of a server, its times are arbitrary.
    if (error == 0 && std::fabs(secondsFromNow(begin)) < kPlausible &&
        std::fabs(secondsFromNow(end)) < kPlausible)
        return {now + secondsFromNow(begin), now + secondsFromNow(end)};
    return {now,
            now + static_cast<double>(jack_get_buffer_size(client)) / jack_get_sample_rate(client)};
}

} // namespace velmora
