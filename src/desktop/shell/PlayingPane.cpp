#include "desktop/shell/PlayingPane.h"

#include "preferences/Preferences.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QSignalBlocker>
#include <QSpinBox>

namespace velmora {

PlayingPane::PlayingPane()
    : touch_(new QComboBox),
      transposition_(makeSemitones(
          "Transposition", tr("How much higher than written the keys of MIDI devices sound"))),
      bendRange_(makeSemitones("BendRange", tr("How far the pitch wheel bends up and down; with 0 "
                                               "it does nothing"))),
      plain_(new QCheckBox(tr("Pl&ain reading of MIDI devices"))),
      correction_(new QCheckBox(tr("Correct the ban&k's own tuning")))
{
    // In the order of `VelocityCurve`.
    touch_->addItems({tr("Linear: as the keyboard sends it"), tr("Soft: a light touch is louder"),
                      tr("Hard: only a strong touch is loud"), tr("Fixed: always the same")});
    touch_->setObjectName("VelocityCurve");
    touch_->setAccessibleName(tr("Touch"));
    connect(touch_, &QComboBox::activated, this, [this](int index) {
        setPrefInt("VelocityCurve", index);
        emit changed();
    });
    bendRange_->setPrefix("±");
    plain_->setObjectName("PlainReading");
    plain_->setToolTip(tr("Only notes and volumes count: no pedals, wheels, programs or learned "
                          "controllers, no touch and no transposition"));
    connect(plain_, &QCheckBox::toggled, this, [this](bool isOn) {
        setPrefBool("PlainReading", isOn);
        showReading();
        emit changed();
    });

    correction_->setObjectName("CorrectTuning");
    correction_->setToolTip(tr("Keys that a SoundFont has out of tune are measured when a program "
                               "is first used, and corrected"));
    connect(correction_, &QCheckBox::toggled, this, [this](bool isOn) {
        setPrefBool("CorrectTuning", isOn);
        emit changed();
    });

    auto* form = new QFormLayout(this);
    form->addRow(tr("&Touch:"), touch_);
    form->addRow(tr("T&ransposition:"), transposition_);
    form->addRow(tr("Pitch &wheel:"), bendRange_);
    form->addRow(QString(), plain_);
    form->addRow(QString(), correction_);
}

QSpinBox* PlayingPane::makeSemitones(const char* key, const QString& help)
{
    auto* box = new QSpinBox;
    const PrefRange range = prefRange(key);
    box->setRange(range.least, range.greatest);
    box->setSuffix(tr(" semitones"));
    box->setObjectName(key);
    box->setToolTip(help);
    box->setKeyboardTracking(false); // store only complete numbers
    box->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(box, &QSpinBox::valueChanged, this, [this, key](int value) {
        setPrefInt(key, value);
        emit changed();
    });
    return box;
}

void PlayingPane::read()
{
    const QSignalBlocker transposition(transposition_), bendRange(bendRange_), plain(plain_),
        correction(correction_);
    touch_->setCurrentIndex(getPrefInt("VelocityCurve"));
    transposition_->setValue(getPrefInt("Transposition"));
    bendRange_->setValue(getPrefInt("BendRange"));
    plain_->setChecked(getPrefBool("PlainReading"));
    correction_->setChecked(getPrefBool("CorrectTuning"));
    showReading();
}

void PlayingPane::showReading()
{
    for (QWidget* field : {static_cast<QWidget*>(touch_), static_cast<QWidget*>(transposition_),
                           static_cast<QWidget*>(bendRange_)})
        field->setEnabled(!plain_->isChecked());
}

} // namespace velmora
