#pragma once

namespace velmora {

/// Gives OpenAL Soft the settings that sampled instruments need: a source for every key of every
/// stop, short periods, and JACK before the other outputs, as the synthesizer has it. A user's own
/// settings stand: where there is an alsoft.conf of the user's only the number of sources is
/// set, where ALSOFT_CONF names one nothing is. To be called before the first use of OpenAL, on
/// the main thread while no other reads the environment; further calls do nothing.
void setUpOpenAL();

} // namespace velmora
