#include "desktop/console/Drawknob.h"

#include "app/AppDelegate.h"
#include "desktop/widgets/LearnMenu.h"
#include "desktop/widgets/stopTitle.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QSlider>
#include <QWidgetAction>

#include <cmath>

namespace velmora {

namespace {

constexpr int kFullVolume = 100;  ///< In per cent.
constexpr int kUsualLetters = 15; ///< The usual width of a knob.
constexpr int kLines = 2;
constexpr int kPadding = 5, kSliderWidth = 160;
constexpr qreal kCorner = 6.0;

} // namespace

Drawknob::Drawknob(AppDelegate& application, Kind kind, std::size_t number) : kind_(kind)
{
    setCheckable(true);
    setFocusPolicy(Qt::NoFocus);
    if (kind == Kind::Stop)
        new LearnMenu(*this, application,
                      {{{LearnedAction::Kind::Volume, static_cast<std::uint16_t>(number)}, {}}},
                      [this](QMenu& menu) { addVolume(menu); });
}

void Drawknob::showKnob(const QString& name, bool isDrawn, float volume)
{
    name_ = name;
    setAccessibleName(name);
    showState(isDrawn, volume);
}

void Drawknob::showState(bool isDrawn, float volume)
{
    setChecked(isDrawn);
    percent_ = static_cast<int>(std::lround(volume * kFullVolume));
    nameState();
    update();
}

void Drawknob::showLoadState(LoadState state)
{
    loadState_ = state;
    nameState();
    update();
}

void Drawknob::nameState()
{
    if (loadState_ != LoadState::Loaded) {
        const QString why = loadStateText(loadState_);
        setToolTip(name_ + "\n" + why);
        setAccessibleDescription(why);
        return;
    }
    setAccessibleDescription({});
    setToolTip(kind_ == Kind::Stop ? tr("%1, volume %2 %\nA click draws it or pushes it in, a "
                                        "right click changes its volume")
                                         .arg(name_)
                                         .arg(percent_)
                                   : tr("%1\nA click draws it or pushes it in").arg(name_));
}

void Drawknob::addVolume(QMenu& menu)
{
    auto* row = new QWidget;
    auto* layout = new QHBoxLayout(row);
    auto* label = new QLabel(tr("&Volume:"));
    auto* slider = new QSlider(Qt::Horizontal);
    auto* text = new QLabel(tr("%1 %").arg(percent_));
    text->setMinimumWidth(text->fontMetrics().horizontalAdvance(tr("%1 %").arg(kFullVolume)));
    label->setBuddy(slider);
    slider->setRange(0, kFullVolume);
    slider->setPageStep(kFullVolume / 10);
    slider->setValue(percent_);
    slider->setMinimumWidth(kSliderWidth);
    slider->setAccessibleName(tr("Volume of %1").arg(name_));
    layout->addWidget(label);
    layout->addWidget(slider);
    layout->addWidget(text);
    connect(slider, &QSlider::valueChanged, this, [this, text](int percent) {
        percent_ = percent;
        nameState();
        update();
        text->setText(tr("%1 %").arg(percent));
        emit volumeChosen(static_cast<float>(percent) / kFullVolume);
    });
    auto* action = new QWidgetAction(&menu);
    action->setDefaultWidget(row);
    menu.addAction(action);
    menu.addSeparator();
    connect(&menu, &QMenu::aboutToShow, slider, [slider] { slider->setFocus(); });
}

QSize Drawknob::sizeHint() const
{
    const QFontMetrics metrics = fontMetrics();
    return {metrics.averageCharWidth() * kUsualLetters + metrics.height() + 3 * kPadding,
            metrics.height() * kLines + 2 * kPadding};
}

void Drawknob::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool isDrawn = isChecked();
    const bool isLoaded = loadState_ == LoadState::Loaded;
    const QPalette::ColorGroup group = isLoaded ? QPalette::Active : QPalette::Disabled;
    const QPalette::ColorRole face = isDrawn ? QPalette::Highlight : QPalette::Button;
    const QColor ink =
        palette().color(group, isDrawn ? QPalette::HighlightedText : QPalette::ButtonText);
    const qreal frame = isDrawn || underMouse() ? 2.0 : 1.0;
    const QRectF body = QRectF(rect()).adjusted(2, 2, -2, -2);
    painter.setPen(QPen(hasFocus() ? palette().color(QPalette::WindowText)
                        : isDrawn  ? ink
                                   : palette().color(QPalette::Mid),
                        hasFocus() ? 3.0 : frame, hasFocus() ? Qt::DotLine : Qt::SolidLine));
    painter.setBrush(palette().color(group, face));
    painter.drawRoundedRect(body, kCorner, kCorner);

    // The mark: a filled ring when it is drawn.
    const qreal size = fontMetrics().height() * 0.7;
    const QRectF mark(body.left() + kPadding, body.center().y() - size / 2, size, size);
    painter.setPen(QPen(ink, 1.5));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(mark);
    if (isDrawn) {
        painter.setBrush(ink);
        painter.drawEllipse(mark.adjusted(size / 4, size / 4, -size / 4, -size / 4));
    }

    QRectF words = body.adjusted(size + 2 * kPadding, 0, -kPadding, 0);
    if (kind_ == Kind::Stop && percent_ < kFullVolume) { // a bar shows a lower volume
        const QRectF bar(words.left(), body.bottom() - 4, words.width(), 2);
        painter.fillRect(bar, palette().color(QPalette::Mid));
        painter.fillRect(QRectF(bar.topLeft(), QSizeF(bar.width() * percent_ / kFullVolume, 2)),
                         ink);
    }
    QFont type = font();
    type.setItalic(kind_ == Kind::Coupler);
    type.setBold(isDrawn);
    painter.setFont(type);
    painter.setPen(ink);
    painter.drawText(words, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextWordWrap, name_);
}

void Drawknob::focusInEvent(QFocusEvent* event)
{
    QAbstractButton::focusInEvent(event);
    emit entered();
}

void Drawknob::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Left:
        emit stepped(-1, 0);
        break;
    case Qt::Key_Right:
        emit stepped(1, 0);
        break;
    case Qt::Key_Up:
        emit stepped(0, -1);
        break;
    case Qt::Key_Down:
        emit stepped(0, 1);
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        click();
        break;
    default:
        QAbstractButton::keyPressEvent(event);
    }
}

void Drawknob::enterEvent(QEnterEvent* event)
{
    QAbstractButton::enterEvent(event);
    update();
}

void Drawknob::leaveEvent(QEvent* event)
{
    QAbstractButton::leaveEvent(event);
    update();
}

} // namespace velmora
