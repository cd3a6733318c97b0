#pragma once

namespace velmora {

/// Configures OpenAL Soft for sampled instruments: a source for every key of every stop, short
/// periods, and JACK before other outputs, as for the synthesizer. The user's settings take
/// precedence: if the user has an alsoft.conf, only the number of sources is set; if ALSOFT_CONF is
/// set, nothing is. Must be called before the first use of OpenAL, on the main thread while no
/// other thread reads environment variables. Further calls do nothing.
void setUpOpenAL();

} // namespace velmora
