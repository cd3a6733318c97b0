#include "desktop/widgets/icons.h"

#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QSvgRenderer>
#include <QtGui/QGuiApplication>

namespace velmora {

namespace {

/// The one colour in which the pictures are drawn.
constexpr const char* kDrawn = "#3b3b3b";

/// Draws a picture anew wherever it is shown, and so sharp, and in the colours of the moment.
class PictureEngine : public QIconEngine {
public:
    explicit PictureEngine(QByteArray picture) : picture_(std::move(picture)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override
    {
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const auto role =
            mode == QIcon::Selected ? QPalette::HighlightedText : QPalette::ButtonText;
        const QColor colour = QGuiApplication::palette().color(group, role);
        QSvgRenderer(QByteArray(picture_).replace(kDrawn, colour.name().toLatin1()))
            .render(painter, rect);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap result(size);
        result.fill(Qt::transparent);
        QPainter painter(&result);
        paint(&painter, result.rect(), mode, state);
        return result;
    }

    QIconEngine* clone() const override { return new PictureEngine(picture_); }

private:
    QByteArray picture_;
};

} // namespace

QIcon icon(const char* name)
{
    QFile file(QString(":/icons/%1.svg").arg(name));
    const bool isThere = file.open(QIODevice::ReadOnly);
    Q_ASSERT_X(isThere, "icon", name);
    return isThere ? QIcon(new PictureEngine(file.readAll())) : QIcon();
}

} // namespace velmora
