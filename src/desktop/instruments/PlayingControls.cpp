#include "desktop/instruments/PlayingControls.h"

#include "app/PlayingOptions.h"
#include "desktop/widgets/scrolling.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

#include <cstdlib>

namespace velmora {

QString transpositionText(int semitones)
{
    const QString sign = semitones == 0 ? "" : semitones > 0 ? "+" : "−";
    return sign + QString::number(std::abs(semitones));
}

PlayingControls::PlayingControls(PlayingOptions& options)
    : options_(options), touch_(new QComboBox),
      lower_(makeButton("−", tr("Transpose down (Ctrl+Shift+Down)"), -1)),
      higher_(makeButton("+", tr("Transpose up (Ctrl+Shift+Up)"), 1)), transposition_(new QLabel)
{
    // In the order of `VelocityCurve`.
    touch_->addItems({tr("Linear touch"), tr("Soft touch"), tr("Hard touch"), tr("Fixed touch")});
    touch_->setObjectName("VelocityCurve");
    touch_->setAccessibleName(tr("Touch"));
    touch_->setToolTip(tr("How loud your touch on a MIDI keyboard sounds: soft makes a light touch "
                          "louder, hard asks for a strong one, fixed ignores the touch"));
    touch_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    touch_->setFocusPolicy(Qt::TabFocus);
    connect(touch_, &QComboBox::activated, this,
            [this](int index) { options_.setVelocityCurve(static_cast<VelocityCurve>(index)); });
    transposition_->setObjectName("Transposition");
    transposition_->setAccessibleName(tr("Transposition"));
    transposition_->setToolTip(tr("The transposition of the MIDI keyboards in semitones"));
    transposition_->setAlignment(Qt::AlignCenter);
    transposition_->setMinimumWidth(fontMetrics().horizontalAdvance(transpositionText(-24)));

    auto* semitones = new QLabel(tr("semitones"));
    semitones->setToolTip(transposition_->toolTip());
    leaveWheelToScrolling(*touch_);

    auto* row = new QHBoxLayout;
    row->addWidget(lower_);
    row->addWidget(transposition_);
    row->addWidget(semitones, 1);
    row->addWidget(higher_);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->addWidget(touch_);
    column->addLayout(row);
    connect(&options_, &PlayingOptions::changed, this, &PlayingControls::showOptions);
    showOptions();
}

QToolButton* PlayingControls::makeButton(const QString& text, const QString& name, int semitones)
{
    auto* button = new QToolButton;
    button->setText(text);
    button->setAccessibleName(name);
    button->setToolTip(name);
    button->setAutoRepeat(true);
    button->setFocusPolicy(Qt::TabFocus);
    connect(button, &QToolButton::clicked, this, [this, semitones] {
        options_.setTransposition(options_.settings().transposition + semitones);
    });
    return button;
}

void PlayingControls::showOptions()
{
    const PlayingSettings& settings = options_.settings();
    setEnabled(!settings.isPlain);
    touch_->setCurrentIndex(static_cast<int>(settings.velocityCurve.load()));
    transposition_->setText(transpositionText(settings.transposition));
    lower_->setEnabled(settings.transposition > -kMaxTransposition);
    higher_->setEnabled(settings.transposition < kMaxTransposition);
}

} // namespace velmora
