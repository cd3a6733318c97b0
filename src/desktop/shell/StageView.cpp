#include "desktop/shell/StageView.h"

#include "app/AppDelegate.h"
#include "desktop/tuning/transposing.h"
#include "desktop/tuning/tuningText.h"
#include "desktop/widgets/messages.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QScreen>
#include <QVBoxLayout>

namespace velmora {

namespace {

/// The sizes of the type relative to that of the program, and the factor to smaller ones.
constexpr double kInstrumentType = 4.0, kTuningType = 2.5, kSmallestType = 1.0;
constexpr double kSmaller = 0.8;

void setType(QLabel& line, double size)
{
    QFont type = QApplication::font();
    type.setPointSizeF(type.pointSizeF() * size);
    line.setFont(type);
}

QLabel* addLine(QVBoxLayout& column)
{
    auto* line = new QLabel;
    line->setAlignment(Qt::AlignCenter);
    line->setWordWrap(true);
    line->setTextFormat(Qt::PlainText);
    column.addWidget(line);
    return line;
}

} // namespace

bool enlargeType(QWidget& window)
{
    constexpr int kTrials = 5;
    const QSize room = window.screen()->size();
    QFont type = window.font();
    const double normal = type.pointSizeF();
    for (int trial = kTrials; trial >= 0; --trial) {
        type.setPointSizeF(normal * (1.0 + (kStageType - 1.0) * trial / kTrials));
        window.setFont(type);
        QApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest); // so that the size is known
        if (window.minimumSizeHint().boundedTo(room) == window.minimumSizeHint())
            return true;
    }
    return false;
}

StageView::StageView(AppDelegate& application, const QAction& leave)
    : application_(application), leave_(leave)
{
    auto* column = new QVBoxLayout(this);
    column->addStretch();
    instrument_ = addLine(*column);
    tuning_ = addLine(*column);
    column->addStretch();
    hint_ = addLine(*column);
    setType(*hint_, 1.0);
    connect(&leave_, &QAction::changed, this, &StageView::showHint);
    showHint();
    connect(&application_, &AppDelegate::instrumentChanged, this, &StageView::showSound);
    connect(&application_.tunings(), &Tunings::changed, this, &StageView::showSound);
    connect(&application_, &AppDelegate::programSelected, this, &StageView::showSound);
}

void StageView::showSound()
{
    instrument_->setText(translatedTitle(application_.soundName()));
    const Tunings& tunings = application_.tunings();
    tuning_->setText(standingTitle(tuningText(application_, tunings.name()).title, tunings));
    fitType();
}

void StageView::fitType()
{
    for (double size = 1.0; size * kInstrumentType >= kSmallestType; size *= kSmaller) {
        setType(*instrument_, size * kInstrumentType);
        setType(*tuning_, size * kTuningType);
        const bool hasWholeWords = layout()->totalMinimumSize().width() <= width();
        if (hasWholeWords && layout()->totalHeightForWidth(width()) <= height())
            return;
    }
}

void StageView::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    fitType();
}

void StageView::showHint()
{
    const QKeySequence key = leave_.shortcut();
    hint_->setText(tr("%1 leaves the stage").arg(key.toString(QKeySequence::NativeText)));
    hint_->setVisible(!key.isEmpty());
}

} // namespace velmora
