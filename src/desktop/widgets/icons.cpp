#include "desktop/widgets/icons.h"

#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QSvgRenderer>
#include <QtGui/QGuiApplication>

namespace velmora {

namespace {

/// The only colour in the SVG files.
constexpr const char* kFileColor = "#3b3b3b";

/// Renders an SVG file each time the icon is painted, so that it is sharp and follows the palette.
class SvgIconEngine : public QIconEngine {
public:
    explicit SvgIconEngine(QByteArray svg) : svg_(std::move(svg)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override
    {
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const auto role =
            mode == QIcon::Selected ? QPalette::HighlightedText : QPalette::ButtonText;
        const QColor color = QGuiApplication::palette().color(group, role);
        QSvgRenderer(QByteArray(svg_).replace(kFileColor, color.name().toLatin1()))
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

    QIconEngine* clone() const override { return new SvgIconEngine(svg_); }

private:
    QByteArray svg_;
};

} // namespace

QIcon icon(const char* name)
{
    QFile file(QString(":/icons/%1.svg").arg(name));
    const bool isOpen = file.open(QIODevice::ReadOnly);
    Q_ASSERT_X(isOpen, "icon", name);
    return isOpen ? QIcon(new SvgIconEngine(file.readAll())) : QIcon();
}

} // namespace velmora
