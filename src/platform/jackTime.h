#pragma once

#include <jack/jack.h>

namespace velmora {

/// Returns the moment at which the period that JACK processes now began, in the seconds of
/// `getTime`. Called in the process callback of `client`.
double jackPeriodStart(jack_client_t* client);

} // namespace velmora
