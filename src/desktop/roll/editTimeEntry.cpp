#include "desktop/roll/editTimeEntry.h"

#include "desktop/roll/TimeEntryDialog.h"
#include "sequencer/SequenceDocument.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace velmora {

namespace {

/// Returns an entry of a kind that says what is in force at a step.
TimeEntry entryInForce(const MusicalTime& time, std::size_t kind, double step)
{
    switch (kind) {
    case kTempoEntry:
        return Tempo::ofBeats(step, time.tempoAt(step));
    case kTimeSignatureEntry:
        return movedTo(time.barAt(step).signature, step);
    case kKeySignatureEntry: {
        const auto after =
            std::ranges::upper_bound(time.keySignatures(), step, {}, &KeySignature::step);
        return after == time.keySignatures().begin() ? KeySignature{step, 0, false}
                                                     : movedTo(*std::prev(after), step);
    }
    default:
        return Marker{step, {}};
    }
}

} // namespace

QString addEntryText(std::size_t kind)
{
    const std::array texts{
        TimeEntryDialog::tr("Add &Tempo…"), TimeEntryDialog::tr("Add Time &Signature…"),
        TimeEntryDialog::tr("Add &Key Signature…"), TimeEntryDialog::tr("Add &Marker…")};
    return texts.at(kind);
}

void addTimeEntry(SequenceDocument& document, std::size_t kind, double step, QWidget* parent)
{
    const MusicalTime before = document.time();
    TimeEntryDialog dialog(entryInForce(before, kind, step), before, parent);
    if (dialog.exec() != QDialog::Accepted)
        return;
    constexpr std::array kTexts{QT_TRANSLATE_NOOP("velmora::TimeEntryDialog", "Add Tempo"),
                                QT_TRANSLATE_NOOP("velmora::TimeEntryDialog", "Add Time Signature"),
                                QT_TRANSLATE_NOOP("velmora::TimeEntryDialog", "Add Key Signature"),
                                QT_TRANSLATE_NOOP("velmora::TimeEntryDialog", "Add Marker")};
    document.setTime(with(document.time(), dialog.entry()), TimeEntryDialog::tr(kTexts.at(kind)));
}

TimeEntry changeTimeEntry(SequenceDocument& document, const TimeEntry& entry, QWidget* parent)
{
    const MusicalTime before = document.time();
    TimeEntryDialog dialog(entry, before, parent);
    if (dialog.exec() != QDialog::Accepted)
        return entry;
    replaceTimeEntry(document, entry, dialog.entry());
    return dialog.entry();
}

void replaceTimeEntry(SequenceDocument& document, const TimeEntry& before, const TimeEntry& after)
{
    constexpr std::array kTexts{
        QT_TRANSLATE_NOOP("velmora::TimeEntryDialog", "Change Tempo"),
        QT_TRANSLATE_NOOP("velmora::TimeEntryDialog", "Change Time Signature"),
        QT_TRANSLATE_NOOP("velmora::TimeEntryDialog", "Change Key Signature"),
        QT_TRANSLATE_NOOP("velmora::TimeEntryDialog", "Change Marker")};
    document.setTime(with(without(document.time(), before), after),
                     TimeEntryDialog::tr(kTexts.at(after.index())));
}

void removeTimeEntry(SequenceDocument& document, const TimeEntry& entry)
{
    constexpr std::array kTexts{
        QT_TRANSLATE_NOOP("velmora::TimeEntryDialog", "Delete Tempo"),
        QT_TRANSLATE_NOOP("velmora::TimeEntryDialog", "Delete Time Signature"),
        QT_TRANSLATE_NOOP("velmora::TimeEntryDialog", "Delete Key Signature"),
        QT_TRANSLATE_NOOP("velmora::TimeEntryDialog", "Delete Marker")};
    document.setTime(without(document.time(), entry),
                     TimeEntryDialog::tr(kTexts.at(entry.index())));
}

} // namespace velmora
