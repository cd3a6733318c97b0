#pragma once

namespace velmora {

/// Configures OpenAL Soft for sampled instruments: enough sources for every key of every stop, and
/// its best resampler. If the variable ALSOFT_CONF is set, the user's settings apply instead. Must
/// be called before the first use of OpenAL, on the main thread while no other thread reads
/// environment variables. Further calls do nothing.
void setUpOpenAL();

} // namespace velmora
