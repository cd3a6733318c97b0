#include "desktop/roll/SequenceStatus.h"

#include "desktop/widgets/noteNames.h"
#include "sequencer/LiveKeys.h"
#include "sequencer/SequenceDocument.h"

#include <QLabel>
#include <QLocale>

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

QString stepText(double step)
{
    return QLocale().toString(step, 'f', step == std::trunc(step) ? 0 : 1);
}

} // namespace

SequenceStatus::SequenceStatus(const SequenceDocument& document)
    : document_(document), mode_(new QLabel), selection_(new QLabel), interval_(new QLabel),
      notes_(new QLabel)
{
    mode_->setToolTip(tr("Practice: play the notes at the position to move on to the next ones"));
    // A long chord must not widen the window.
    mode_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    addWidget(mode_, 1);
    for (QLabel* label : {selection_, interval_, notes_})
        addPermanentWidget(label);
    const Transport& transport = document_.transport();
    connect(&document_, &SequenceDocument::changed, this, &SequenceStatus::showNotes);
    connect(&transport, &Transport::moved, this, &SequenceStatus::showNotes);
    connect(&transport, &Transport::moved, this, &SequenceStatus::showMode);
    connect(&transport, &Transport::frame, this, &SequenceStatus::showMode);
    connect(&transport, &Transport::modeChanged, this, &SequenceStatus::showMode);
    connect(&transport, &Transport::modeChanged, this, &SequenceStatus::showNotes);
    showNotes();
    showMode();
}

void SequenceStatus::showNotes()
{
    const auto& notes = document_.sequence().notes();
    const auto selected = static_cast<int>(
        std::count_if(notes.begin(), notes.end(), [](const Note& note) { return note.selected; }));
    selection_->setText(selected == 0 ? QString() : tr("%n note(s) selected", nullptr, selected));
    const Interval& interval = document_.transport().interval();
    interval_->setText(
        interval.isEmpty()
            ? QString()
            : tr("Steps %1 to %2").arg(stepText(interval.start), stepText(interval.end)));
    notes_->setText(tr("%n note(s) in all", nullptr, static_cast<int>(notes.size())));
}

void SequenceStatus::showMode()
{
    switch (document_.transport().mode()) {
    case Transport::Mode::Playing:
        mode_->setText(tr("Playing"));
        break;
    case Transport::Mode::Recording:
        mode_->setText(tr("Recording"));
        showNotes(); // while recording, only `frame` announces new notes
        break;
    case Transport::Mode::Stopped:
        mode_->setText(practiceText());
        break;
    }
}

QString SequenceStatus::practiceText() const
{
    QStringList missing, wrong;
    for (unsigned key = 0; key < kKeys; ++key) {
        const int state = document_.practice().stateOfNote(key);
        if (state == kWanted || state == (kWanted | kHeld))
            missing += noteText(key);
        else if (state == kPressed)
            wrong += noteText(key);
    }
    QString text = missing.isEmpty() ? QString() : tr("Waiting for %1").arg(missing.join(", "));
    if (!missing.isEmpty() && !wrong.isEmpty())
        text += tr("; release %1").arg(wrong.join(", "));
    return text;
}

} // namespace velmora
