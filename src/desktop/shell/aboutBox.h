#pragma once

class QWidget;

namespace velmora {

/// Tells which version this is and what it stands on, and waits to be closed.
void showAbout(QWidget& parent);

} // namespace velmora
