#pragma once

class QWidget;

namespace velmora {

/// Shows the version and the libraries in use. Returns when the user closes the box.
void showAbout(QWidget& parent);

} // namespace velmora
