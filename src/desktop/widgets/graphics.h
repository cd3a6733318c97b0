#pragma once

class QOpenGLWidget;

namespace velmora {

/// Asks for what the views draw with: OpenGL 2.1 with its fixed functions. To be called before the
/// QApplication is made.
void chooseGraphics();

/// Has what is drawn next measured in the view's pixels, upwards from its lower edge. `left` is the
/// coordinate of its left edge.
void setPixelCoordinates(const QOpenGLWidget& view, int left);

} // namespace velmora
