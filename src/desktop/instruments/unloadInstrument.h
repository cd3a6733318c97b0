#pragma once

#include <QString>

#include <cstddef>

namespace velmora {

class AppDelegate;

/// Unloads an instrument of the application's list. Returns an empty text, or a sentence that says
/// why that is not possible now and what to do.
QString unloadInstrument(AppDelegate& application, std::size_t position);

} // namespace velmora
