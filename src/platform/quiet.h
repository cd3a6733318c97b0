#pragma once

namespace velmora {

/// Leads what ALSA, libjack and FluidSynth would print on standard error to the log, at debug
/// level, and keeps libjack from starting a server of its own. To be called before the first use of
/// any of them, on the main thread while no other reads the environment; further calls do nothing.
void quietSoundLibraries();

} // namespace velmora
