#include "desktop/shell/StageView.h"

#include "app/AppDelegate.h"
#include "desktop/tuning/transposing.h"
#include "desktop/tuning/tuningText.h"
#include "desktop/widgets/messages.h"

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

StageView::StageView(AppDelegate& application) : application_(application)
{
    auto* column = new QVBoxLayout(this);
    column->addStretch();
    instrument_ = addLine(*column, kInstrumentType);
    tuning_ = addLine(*column, kTuningType);
    column->addStretch();
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

} // namespace velmora
