#pragma once

#include "app/Session.h"

#include <string>
#include <vector>

namespace velmora {

class AppDelegate;

/// Returns what an application plays: the loaded instruments, the tunings and the transposition,
/// but no pieces and no layout.
Session currentSession(AppDelegate& application);

/// Opens the instruments and tunings of a session beside those that are open, and plays the same
/// ones as the session did. Files that are already open are not opened again. Returns a sentence
/// for each file that cannot be opened; the rest is opened all the same. If the user cancels the
/// loading of an instrument, the ones after it are left out too.
std::vector<std::string> openSession(const Session& session, AppDelegate& application);

} // namespace velmora
