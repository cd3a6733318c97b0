#pragma once

#include <QString>

#include <cstddef>

namespace velmora {

class AppDelegate;
class Instrument;

/// Returns the name of a stop for the user, also if it has none.
QString stopTitle(const Instrument& instrument, std::size_t stop);

/// True if the current instrument has a console, or too many stops for a list of sliders.
bool isPlayedFromConsole(AppDelegate& application);

} // namespace velmora
