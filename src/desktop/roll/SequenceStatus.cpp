#include "desktop/roll/SequenceStatus.h"

#include "sequencer/SequenceDocument.h"
#include "sound/KeyTables.h"
#include "tuning/keyName.h"

#include <QLabel>

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

QString numberOf(std::size_t notes)
{
    return notes == 1 ? SequenceStatus::tr("1 note") : SequenceStatus::tr("%1 notes").arg(notes);
}

QString step(double step)
{
    return QString::number(step, 'f', step == std::trunc(step) ? 0 : 1);
}

} // namespace

SequenceStatus::SequenceStatus(const SequenceDocument& document)
    : document_(document), practice_(new QLabel), selection_(new QLabel), interval_(new QLabel),
      notes_(new QLabel)
{
    practice_->setAccessibleName(tr("What is waited for"));
    practice_->setToolTip(tr("The notes at the position: play them, all at once, to go on"));
    // A long chord does not widen the window.
    practice_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    addWidget(practice_, 1);
    for (QLabel* label : {selection_, interval_, notes_})
        addPermanentWidget(label);
    connect(&document_, &SequenceDocument::changed, this, &SequenceStatus::showNotes);
    connect(&document_, &SequenceDocument::changed, this, &SequenceStatus::showMode);
    connect(&document_, &SequenceDocument::frame, this, &SequenceStatus::showMode);
    connect(&document_, &SequenceDocument::modeChanged, this, &SequenceStatus::showMode);
    connect(&document_, &SequenceDocument::modeChanged, this, &SequenceStatus::showNotes);
    showNotes();
    showMode();
}

void SequenceStatus::showNotes()
{
    const auto& notes = document_.getSequence().notes();
    const auto selected = static_cast<std::size_t>(
        std::count_if(notes.begin(), notes.end(), [](const Note& note) { return note.selected; }));
    selection_->setText(selected == 0 ? QString() : tr("%1 selected").arg(numberOf(selected)));
    interval_->setText(document_.intervalSelected() ? tr("Steps %1 to %2")
                                                          .arg(step(document_.getSelectionStart()),
                                                               step(document_.getSelectionEnd()))
                                                    : QString());
    notes_->setText(tr("%1 in all").arg(numberOf(notes.size())));
}

void SequenceStatus::showMode()
{
    switch (document_.mode()) {
    case SequenceDocument::Mode::Playing:
        practice_->setText(tr("Playing"));
        break;
    case SequenceDocument::Mode::Recording:
        practice_->setText(tr("Recording"));
        showNotes(); // they come with the frames
        break;
    case SequenceDocument::Mode::Stopped:
        practice_->setText(practice());
        break;
    }
}

QString SequenceStatus::practice() const
{
    QStringList missing, wrong;
    for (unsigned key = 0; key < kKeys; ++key) {
        const int state = document_.stateOfNote(key);
        if (state == kWanted || state == (kWanted | kHeld))
            missing += QString::fromStdString(noteName(key));
        else if (state == kPressed)
            wrong += QString::fromStdString(noteName(key));
    }
    QString text = missing.isEmpty() ? QString() : tr("Waiting for %1").arg(missing.join(", "));
    if (!missing.isEmpty() && !wrong.isEmpty())
        text += tr(", not %1").arg(wrong.join(", "));
    return text;
}

} // namespace velmora
