#include "desktop/roll/QuantiseDialog.h"

#include "sequencer/SequenceDocument.h"
#include "sequencer/SequenceEditor.h"
#include "sequencer/SequenceTime.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QSpinBox>

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

constexpr int kShortestUnit = 64; ///< A sixty-fourth note.
constexpr double kTriplet = 2.0 / 3.0;

/// The range of the swing: even notes, and dotted ones.
constexpr int kEven = 50, kDotted = 75;

QSpinBox* percentBox(int least, int greatest, double value)
{
    auto* box = new QSpinBox;
    box->setRange(least, greatest);
    box->setSuffix(QuantiseDialog::tr(" %"));
    box->setValue(static_cast<int>(std::lround(value * 100)));
    return box;
}

} // namespace

QuantiseDialog::QuantiseDialog(SequenceDocument& document, SequenceEditor& editor,
                               const Quantisation& choice, QWidget* parent)
    : QDialog(parent), document_(document), editor_(editor), notes_(editor.chosen()),
      preview_(document), unit_(new QComboBox), strength_(percentBox(0, 100, choice.strength)),
      swing_(percentBox(kEven, kDotted, choice.swing)),
      ends_(new QCheckBox(tr("Move the &ends of notes as well")))
{
    setWindowTitle(tr("Quantise"));
    for (int part = 1; part <= kShortestUnit; part *= 2) {
        const double unit = static_cast<double>(kStepsPerWhole) / part;
        unit_->addItem(tr("1/%1").arg(part), unit);
        unit_->addItem(tr("1/%1 triplets").arg(part), unit * kTriplet);
    }
    unit_->setCurrentIndex(std::max(0, unit_->findData(choice.unit)));
    swing_->setToolTip(tr("Where the second of two units begins: 50 % is even, 67 % triplets"));
    ends_->setChecked(choice.movesEnds);

    auto* form = new QFormLayout(this);
    const int count = static_cast<int>(notes_.size());
    form->addRow(new QLabel(document.sequence().selection().empty()
                                ? tr("Moves all %n note(s) to the grid.", nullptr, count)
                                : tr("Moves %n selected note(s) to the grid.", nullptr, count)));
    form->addRow(tr("&Grid:"), unit_);
    form->addRow(tr("&Strength:"), strength_);
    form->addRow(tr("S&wing:"), swing_);
    form->addRow(ends_);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    form->addRow(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(unit_, &QComboBox::currentIndexChanged, this, &QuantiseDialog::preview);
    for (const QSpinBox* box : {strength_, swing_})
        connect(box, &QSpinBox::valueChanged, this, &QuantiseDialog::preview);
    connect(ends_, &QCheckBox::toggled, this, &QuantiseDialog::preview);
    preview();
}

Quantisation QuantiseDialog::choice() const
{
    return {.unit = unit_->currentData().toDouble(),
            .strength = strength_->value() / 100.0,
            .swing = swing_->value() / 100.0,
            .movesEnds = ends_->isChecked()};
}

void QuantiseDialog::preview()
{
    preview_.show(quantised(notes_, choice(), document_.time()));
}

void QuantiseDialog::done(int result)
{
    preview_.takeBack();
    if (result == Accepted)
        editor_.quantise(choice());
    QDialog::done(result);
}

} // namespace velmora
