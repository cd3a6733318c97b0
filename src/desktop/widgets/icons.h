#pragma once

#include <QIcon>

namespace velmora {

/// One of the program's own icons, such as "record", in the text colour of the desktop's theme.
QIcon icon(const char* name);

} // namespace velmora
