#pragma once

#include "desktop/shell/CommandPalette.h"

#include <vector>

namespace velmora {

class AppDelegate;

/// Returns all tunings as choices of the command palette, which select them. The application must
/// outlive the choices.
std::vector<CommandPalette::Choice> tuningChoices(AppDelegate& application);

} // namespace velmora
