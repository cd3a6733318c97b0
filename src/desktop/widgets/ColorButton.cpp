#include "desktop/widgets/ColorButton.h"

#include <QColorDialog>
#include <QPainter>

namespace velmora {

ColorButton::ColorButton(const QString& name, QWidget* parent) : QPushButton(parent)
{
    setAccessibleName(name);
    setIconSize({48, 16});
    connect(this, &QPushButton::clicked, this, &ColorButton::choose);
}

void ColorButton::setColor(const QColor& color)
{
    color_ = color;
    QPixmap swatch(iconSize() * devicePixelRatioF());
    swatch.setDevicePixelRatio(devicePixelRatioF());
    swatch.fill(color);
    QPainter painter(&swatch);
    painter.setPen(QColor(0, 0, 0, 96));
    painter.drawRect(QRect({0, 0}, iconSize()).adjusted(0, 0, -1, -1));
    painter.end();
    setIcon(swatch);
    setAccessibleDescription(color.name());
}

void ColorButton::choose()
{
    auto* dialog = new QColorDialog(color_, this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(accessibleName());
    connect(dialog, &QColorDialog::colorSelected, this, &ColorButton::chosen);
    dialog->open();
}

} // namespace velmora
