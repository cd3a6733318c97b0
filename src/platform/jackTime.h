#pragma once

#include <jack/jack.h>

namespace velmora {

/// A period of JACK, in the seconds of `getTime`. The next one starts exactly at its end, but
/// JACK's estimate of its length wavers after a late period.
struct JackPeriod {
    double start, end;
};

/// Returns the period that JACK processes now. Called in the process callback of `client`.
JackPeriod jackPeriod(jack_client_t* client);

} // namespace velmora
