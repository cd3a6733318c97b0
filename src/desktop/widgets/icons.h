#pragma once

#include <QIcon>

namespace velmora {

/// Returns one of the program's own icons, such as "record". It is drawn in the text colour of the
/// desktop's theme.
QIcon icon(const char* name);

} // namespace velmora
