#include "desktop/widgets/FramingStyle.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <QStyleFactory>
#include <QStyleOption>
#include <gtest/gtest.h>

#include <memory>

namespace velmora {

namespace {

QImage drawn(QWidget& widget, QStyle& style, const QPalette& palette)
{
    widget.setStyle(&style);
    widget.setPalette(palette);
    widget.resize(widget.sizeHint());
    return widget.grab().toImage();
}

} // namespace

TEST(FramingStyle, FramesControlsOnBlackOnly)
{
    const std::unique_ptr<QStyle> plain(QStyleFactory::create("fusion"));
    FramingStyle framing;
    framing.setBaseStyle(QStyleFactory::create("fusion"));
    QPalette black(Qt::black);
    black.setColor(QPalette::WindowText, Qt::white);
    const QPalette light(Qt::lightGray);
    QCheckBox box;
    QComboBox choice;
    QLineEdit line;
    QPushButton button;
    QSlider slider;
    QSpinBox number;
    for (QWidget* control :
         std::initializer_list<QWidget*>{&box, &choice, &line, &button, &slider, &number}) {
        SCOPED_TRACE(control->metaObject()->className());
        EXPECT_NE(drawn(*control, framing, black), drawn(*control, *plain, black));
        EXPECT_EQ(drawn(*control, framing, light), drawn(*control, *plain, light));
    }

    // A click gives the focus without the bright frame that the Tab key brings.
    QStyleOptionButton clicked;
    clicked.rect = QRect(0, 0, 16, 16);
    clicked.palette = black;
    clicked.palette.setColor(QPalette::Highlight, Qt::yellow);
    clicked.state = QStyle::State_Enabled | QStyle::State_HasFocus;
    QImage image(clicked.rect.size(), QImage::Format_RGB32);
    image.fill(Qt::black);
    QPainter painter(&image);
    framing.drawPrimitive(QStyle::PE_IndicatorCheckBox, &clicked, &painter, nullptr);
    painter.end();
    EXPECT_EQ(image.pixelColor(0, 8), QColor(Qt::yellow));
}

} // namespace velmora
