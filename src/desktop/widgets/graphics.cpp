#include "desktop/widgets/graphics.h"

#include <QOpenGLContext>
#include <QOpenGLWidget>
#include <QSurfaceFormat>

namespace velmora {

void requestOpenGL()
{
    QSurfaceFormat format;
    format.setRenderableType(QSurfaceFormat::OpenGL);
    format.setVersion(2, 1);
    format.setProfile(QSurfaceFormat::CompatibilityProfile);
    format.setDepthBufferSize(24);
    QSurfaceFormat::setDefaultFormat(format);
}

bool hasOpenGL()
{
    QOpenGLContext context;
    return context.create();
}

void setPixelCoordinates(const QOpenGLWidget& view, int left)
{
    const double ratio = view.devicePixelRatioF();
    glViewport(0, 0, qRound(view.width() * ratio), qRound(view.height() * ratio));
    glMatrixMode(GL_MODELVIEW);
    glLoadIdentity();
    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    glOrtho(left, left + view.width(), 0, view.height(), -1, 1);
}

} // namespace velmora
