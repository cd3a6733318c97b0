#include "desktop/shell/StageView.h"

#include "app/AppDelegate.h"
#include "desktop/tuning/transposing.h"
#include "desktop/tuning/tuningText.h"
#include "desktop/widgets/messages.h"

#include <QAction>
#include <QLabel>
#include <QVBoxLayout>

namespace velmora {

namespace {

/// The size of the type relative to that of the program.
constexpr double kInstrumentType = 4.0, kTuningType = 2.5;

QLabel* addLine(QVBoxLayout& column, double size)
{
    auto* line = new QLabel;
    QFont type = line->font();
    type.setPointSizeF(type.pointSizeF() * size);
    line->setFont(type);
    line->setAlignment(Qt::AlignCenter);
    line->setWordWrap(true);
    line->setTextFormat(Qt::PlainText);
    column.addWidget(line);
    return line;
}

} // namespace

StageView::StageView(AppDelegate& application, const QAction& leave)
    : application_(application), leave_(leave)
{
    auto* column = new QVBoxLayout(this);
    column->addStretch();
    instrument_ = addLine(*column, kInstrumentType);
    tuning_ = addLine(*column, kTuningType);
    column->addStretch();
    hint_ = addLine(*column, 1.0);
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
}

void StageView::showHint()
{
    const QKeySequence key = leave_.shortcut();
    hint_->setText(tr("%1 leaves the stage").arg(key.toString(QKeySequence::NativeText)));
    hint_->setVisible(!key.isEmpty());
}

} // namespace velmora
