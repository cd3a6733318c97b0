#pragma once

namespace velmora {

/// Seconds of a clock that runs evenly, from an arbitrary beginning. On any thread.
double getTime();

} // namespace velmora
