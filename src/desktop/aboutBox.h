#pragma once

class QWidget;

/// Tells which version this is and what it stands on, and waits to be closed.
void showAbout(QWidget& parent);
