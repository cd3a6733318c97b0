#pragma once

#include "sound/LoadState.h"

#include <QString>

#include <cstddef>

namespace velmora {

class AppDelegate;
class Instrument;

/// Returns the name of a stop for the user, also if it has none.
QString stopTitle(const Instrument& instrument, std::size_t stop);

/// Returns a sentence that says why a stop is not in memory; empty if it is.
QString loadStateText(LoadState state);

/// True if the current instrument has a console, or too many stops for a list of sliders.
bool isPlayedFromConsole(AppDelegate& application);

} // namespace velmora
