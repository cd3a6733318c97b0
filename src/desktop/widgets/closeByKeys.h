#pragma once

class QWidget;

namespace velmora {

/// Closes a window by Esc and by the desktop's key for it, from now until the window ends.
void closeByKeys(QWidget& window);

} // namespace velmora
