#include "desktop/roll/SequenceStatus.h"

#include "desktop/widgets/noteNames.h"
#include "sequencer/LiveKeys.h"
#include "sequencer/SequenceDocument.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

constexpr int kMargin = 6;

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
    // Long texts must not widen the window.
    mode_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    interval_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    interval_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(kMargin, 2, kMargin, 2);
    layout->setSpacing(2 * kMargin);
    layout->addWidget(mode_, 1);
    layout->addWidget(selection_);
    layout->addWidget(interval_, 1);
    layout->addWidget(notes_);
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
    interval_->setText(intervalText());
    interval_->setHidden(interval_->text().isEmpty()); // the room is that of the mode then
    notes_->setText(tr("%n note(s) in all", nullptr, static_cast<int>(notes.size())));
}

QString SequenceStatus::intervalText() const
{
    const Interval& interval = document_.transport().interval();
    if (interval.isEmpty())
        return {};
    if (document_.reading() == Reading::Plain)
        return tr("Steps %1 to %2").arg(stepText(interval.start), stepText(interval.end));
    const Bar first = document_.time().barAt(interval.start);
    const Bar last = document_.time().barAt(interval.end);
    const auto beatText = [this](const Bar& bar, double step) {
        return locale().toString(std::round(bar.beatAt(step) * 100.0) / 100.0);
    };
    return tr("Bar %1, beat %2 to bar %3, beat %4")
        .arg(locale().toString(first.number), beatText(first, interval.start),
             locale().toString(last.number), beatText(last, interval.end));
}

void SequenceStatus::showMode()
{
    switch (document_.transport().mode()) {
    case Transport::Mode::Playing:
        mode_->setText(document_.practiceSession().isRunning() ? keysText() : tr("Playing"));
        break;
    case Transport::Mode::Recording:
        mode_->setText(document_.transport().beatsToCount() > 0 ? tr("Counting in")
                                                                : tr("Recording"));
        showNotes(); // while recording, only `frame` announces new notes
        break;
    case Transport::Mode::Stopped:
        mode_->setText(practiceText());
        break;
    }
}

QString SequenceStatus::practiceText() const
{
    if (document_.practice().isDone())
        return tr("Done: all notes played");
    return keysText();
}

QString SequenceStatus::keysText() const
{
    QStringList missing, wrong;
    bool isAnyWanted = false;
    for (unsigned key = 0; key < kKeys; ++key) {
        const int state = document_.practice().stateOfNote(key);
        isAnyWanted = isAnyWanted || (state & kWanted) != 0;
        if (state == kWanted || state == (kWanted | kHeld))
            missing += noteText(key);
        else if (state == kPressed)
            wrong += noteText(key);
    }
    if (!isAnyWanted)
        return {};
    if (missing.isEmpty())
        return wrong.isEmpty() ? QString() : tr("Release %1").arg(wrong.join(' '));
    const PracticeSession& session = document_.practiceSession();
    if (session.isRunning() && !session.waits())
        return tr("Next: %1").arg(missing.join(' '));
    if (wrong.isEmpty())
        return tr("Waiting for %1").arg(missing.join(' '));
    return tr("Waiting for %1; not %2").arg(missing.join(' '), wrong.join(' '));
}

} // namespace velmora
