#pragma once

class QOpenGLWidget;

namespace velmora {

/// Requests OpenGL 2.1 with the fixed-function pipeline, which the views draw with. Must be called
/// before the QApplication is created.
void requestOpenGL();

/// Makes OpenGL coordinates pixels of the view, with y growing upwards from its lower edge. `left`
/// is the x coordinate of its left edge.
void setPixelCoordinates(const QOpenGLWidget& view, int left);

} // namespace velmora
