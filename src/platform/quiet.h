#pragma once

/// Leads what ALSA and libjack would print on standard error to the log, at debug level, and keeps
/// libjack from starting a server of its own. To be called before the first use of either, on the
/// main thread while no other reads the environment; further calls do nothing.
void quietSoundLibraries();
