#pragma once

class QOpenGLWidget;

namespace velmora {

/// Requests OpenGL 2.1 with the fixed-function pipeline that the views use. Must be called before
/// the QApplication is created.
void requestOpenGL();

/// Returns whether windows can be drawn with OpenGL. Needs a QGuiApplication.
bool hasOpenGL();

/// Maps OpenGL coordinates to the pixels of a view. x is `left` at its left edge; y is 0 at its
/// lower edge and grows upwards.
void setPixelCoordinates(const QOpenGLWidget& view, int left);

} // namespace velmora
