#pragma once

#include <QSize>

#include <string>

class QWidget;

namespace velmora {

/// How large a window may be when it is first opened, so that it leaves something of its screen.
QSize roomFor(const QWidget& window);

/// Puts a window where it was when the program last ran, and remembers under the name where it is
/// when it is hidden or the program ends. To be called once, before the window is shown.
void rememberPlace(QWidget& window, const std::string& name);

/// Shows a window if it stood open when the program last ended, and remembers under the name
/// whether it does when the program ends.
void reopen(QWidget& window, const std::string& name);

/// Brings a window to the front, from wherever it is.
void present(QWidget& window);

} // namespace velmora
