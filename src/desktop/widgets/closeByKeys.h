#pragma once

class QWidget;

namespace velmora {

/// Makes Esc and the desktop's standard shortcut close a window.
void closeByKeys(QWidget& window);

} // namespace velmora
