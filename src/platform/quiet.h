#pragma once

namespace velmora {

/// Sends the messages that ALSA, libjack and FluidSynth would print on standard error to the log,
/// at debug level, and keeps libjack from starting a server. Must be called on the main thread
/// before any of these libraries is used and before another thread reads the environment. Further
/// calls do nothing.
void quietSoundLibraries();

} // namespace velmora
