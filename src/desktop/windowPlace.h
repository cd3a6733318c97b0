#pragma once

#include <QString>

class QWidget;

/// Puts a window where it was when the program last ran, and remembers under the name where it is
/// when it is hidden or the program ends. To be called once, before the window is shown.
void rememberPlace(QWidget& window, const QString& name);

/// Whether the window of that name stood open when the program last ended.
bool wasOpen(const QString& name);
