#pragma once

/// Asks for what the views draw with: OpenGL 2.1 with its fixed functions. To be called before the
/// QApplication is made.
void chooseGraphics();
