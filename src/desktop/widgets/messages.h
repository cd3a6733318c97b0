#pragma once

#include <QString>

#include <string>

namespace velmora {

/// Returns a message from below the desktop, such as the reason why a file cannot be read, in the
/// user's language. A message that has no translation stays in English. See docs/decisions.md, 147.
QString translated(const std::string& message);

/// Returns the title of an instrument for the user, as `InstrumentDocument::title` gives it.
QString translatedTitle(const std::string& title);

} // namespace velmora
