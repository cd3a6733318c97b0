#pragma once

#include <QSize>

#include <string>

class QWidget;

namespace velmora {

/// Returns the largest size for a window that opens for the first time: most of its screen.
QSize roomFor(const QWidget& window);

/// Restores the size and position that were last stored under `name`; without any, the window opens
/// in the middle of the active one. From now on stores them when
/// the window is hidden or the program ends, but not while the widget is a part of another window.
/// Call it before the window is shown.
void rememberPlace(QWidget& window, const std::string& name);

/// Shows a window if it was open when the program last ended. Stores under `name` whether it is
/// open when the program ends.
void reopen(QWidget& window, const std::string& name);

/// Shows a window, restores it if it is minimised, and brings it to the front.
void present(QWidget& window);

} // namespace velmora
