#include "desktop/roll/SelectDialog.h"

#include "desktop/widgets/NoteSpinBox.h"
#include "midi/messages.h"
#include "sequencer/SequenceEditor.h"
#include "sound/keys.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>

#include <cmath>

namespace velmora {

namespace {

constexpr int kEveryVoice = -1;
constexpr int kLoudest = 127;

/// Shows a range as two boxes.
QWidget* rangeOf(QSpinBox& from, QSpinBox& to)
{
    auto* range = new QWidget;
    auto* row = new QHBoxLayout(range);
    row->setContentsMargins({});
    row->addWidget(&from);
    row->addWidget(new QLabel("–"));
    row->addWidget(&to);
    range->setFocusProxy(&from);
    return range;
}

} // namespace

SelectDialog::SelectDialog(SequenceEditor& editor, QWidget* parent)
    : QDialog(parent), editor_(editor), channel_(new QComboBox), lowest_(new NoteSpinBox),
      highest_(new NoteSpinBox), softest_(new QSpinBox), loudest_(new QSpinBox)
{
    setWindowTitle(tr("Select Notes"));
    channel_->addItem(tr("All"), kEveryVoice);
    for (int channel = 0; channel < midi::kChannels; ++channel)
        channel_->addItem(QString::number(channel + 1), channel);
    lowest_->setAccessibleName(tr("Lowest key"));
    highest_->setAccessibleName(tr("Highest key"));
    highest_->setValue(static_cast<int>(kLastKey));
    softest_->setAccessibleName(tr("Softest velocity"));
    loudest_->setAccessibleName(tr("Loudest velocity"));
    for (QSpinBox* box : {softest_, loudest_})
        box->setRange(1, kLoudest);
    loudest_->setValue(kLoudest);

    auto* form = new QFormLayout(this);
    form->addRow(tr("&Voice:"), channel_);
    form->addRow(tr("&Keys:"), rangeOf(*lowest_, *highest_));
    form->addRow(tr("V&elocities:"), rangeOf(*softest_, *loudest_));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    form->addRow(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &SelectDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &SelectDialog::reject);
}

void SelectDialog::accept()
{
    const int channel = channel_->currentData().toInt();
    const auto isWithin = [](int value, const QSpinBox& from, const QSpinBox& to) {
        return from.value() <= value && value <= to.value();
    };
    editor_.select(
        [&](const Note& note) {
            return (channel == kEveryVoice || note.channel == static_cast<unsigned>(channel)) &&
                   isWithin(static_cast<int>(note.key), *lowest_, *highest_) &&
                   isWithin(static_cast<int>(std::lround(note.velocity * kLoudest)), *softest_,
                            *loudest_);
        },
        Qt::NoModifier);
    QDialog::accept();
}

} // namespace velmora
