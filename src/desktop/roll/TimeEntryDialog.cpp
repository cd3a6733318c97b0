#include "desktop/roll/TimeEntryDialog.h"

#include "base/Text.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QSpinBox>

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

constexpr int kMostSharps = 7, kModes = 2, kMostUnits = 255, kShortestNote = 64;
constexpr double kLeastTempo = 4.0, kMostTempo = 999.0;

/// A place closer than this to the one before is the same.
constexpr double kSamePlace = 0.01;

QString keyText(int sharps, bool isMinor)
{
    const QStringList names =
        (isMinor ? TimeEntryDialog::tr("A♭ E♭ B♭ F C G D A E B F♯ C♯ G♯ D♯ A♯", "minor keys")
                 : TimeEntryDialog::tr("C♭ G♭ D♭ A♭ E♭ B♭ F C G D A E B F♯ C♯", "major keys"))
            .split(' ');
    const QString name = names.value(std::clamp(sharps, -kMostSharps, kMostSharps) + kMostSharps);
    return isMinor ? TimeEntryDialog::tr("%1 minor").arg(name)
                   : TimeEntryDialog::tr("%1 major").arg(name);
}

QString titleOf(const TimeEntry& entry)
{
    switch (entry.index()) {
    case 0:
        return TimeEntryDialog::tr("Tempo");
    case 1:
        return TimeEntryDialog::tr("Time Signature");
    case 2:
        return TimeEntryDialog::tr("Key Signature");
    default:
        return TimeEntryDialog::tr("Marker");
    }
}

} // namespace

QString entryText(const TimeEntry& entry)
{
    const QLocale locale;
    if (const auto* tempo = std::get_if<Tempo>(&entry))
        return locale.toString(std::round(tempo->beats() * 10.0) / 10.0);
    if (const auto* signature = std::get_if<TimeSignature>(&entry))
        return QString("%1/%2").arg(signature->count).arg(signature->unit);
    if (const auto* key = std::get_if<KeySignature>(&entry))
        return keyText(key->sharps, key->isMinor);
    return QString::fromStdString(toUtf8(std::get<Marker>(entry).text));
}

TimeEntryDialog::TimeEntryDialog(const TimeEntry& entry, const MusicalTime& time, QWidget* parent)
    : QDialog(parent), before_(entry), time_(time), bar_(new QSpinBox), beat_(new QDoubleSpinBox)
{
    setWindowTitle(titleOf(entry));
    auto* form = new QFormLayout(this);
    addFields(*form);
    addPlace(*form);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    form->addRow(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    if (text_ != nullptr) {
        auto* accept = buttons->button(QDialogButtonBox::Ok);
        const auto check = [this, accept] { accept->setEnabled(!text_->text().isEmpty()); };
        connect(text_, &QLineEdit::textChanged, this, check);
        check();
    }
}

void TimeEntryDialog::addFields(QFormLayout& form)
{
    if (const auto* tempo = std::get_if<Tempo>(&before_)) {
        tempo_ = new QDoubleSpinBox;
        tempo_->setRange(kLeastTempo, kMostTempo);
        tempo_->setDecimals(1);
        tempo_->setSuffix(tr(" bpm"));
        tempo_->setValue(tempo->beats());
        form.addRow(tr("&Tempo:"), tempo_);
    } else if (const auto* signature = std::get_if<TimeSignature>(&before_)) {
        count_ = new QSpinBox;
        count_->setRange(1, kMostUnits);
        count_->setValue(signature->count);
        form.addRow(tr("&Notes in a bar:"), count_);
        choice_ = new QComboBox;
        for (int unit = 1; unit <= kShortestNote; unit *= 2)
            choice_->addItem(tr("1/%1").arg(unit), unit);
        choice_->setCurrentIndex(choice_->findData(signature->unit));
        form.addRow(tr("&Value of a note:"), choice_);
    } else if (const auto* key = std::get_if<KeySignature>(&before_)) {
        choice_ = new QComboBox;
        for (const bool isMinor : {false, true})
            for (int sharps = -kMostSharps; sharps <= kMostSharps; ++sharps)
                choice_->addItem(keyText(sharps, isMinor), sharps * kModes + (isMinor ? 1 : 0));
        choice_->setCurrentIndex(choice_->findData(key->sharps * kModes + (key->isMinor ? 1 : 0)));
        form.addRow(tr("&Key:"), choice_);
    } else {
        text_ = new QLineEdit;
        text_->setText(entryText(before_));
        form.addRow(tr("&Text:"), text_);
    }
}

void TimeEntryDialog::addPlace(QFormLayout& form)
{
    const Bar bar = time_.barAt(stepOf(before_));
    bar_->setRange(time_.barAt(0.0).number, 99'999);
    bar_->setValue(bar.number);
    beat_->setDecimals(2);
    limitBeats();
    beat_->setValue(bar.beatAt(stepOf(before_)));
    connect(bar_, &QSpinBox::valueChanged, this, &TimeEntryDialog::limitBeats);
    form.addRow(tr("&Bar:"), bar_);
    form.addRow(tr("B&eat:"), beat_);
}

void TimeEntryDialog::limitBeats()
{
    const Bar bar = time_.barAt(time_.startOfBar(bar_->value()));
    beat_->setRange(1.0, bar.beatAt(bar.start + bar.length) - kSamePlace);
}

double TimeEntryDialog::step() const
{
    const double start = time_.startOfBar(bar_->value());
    const Bar bar = time_.barAt(start);
    // What is not changed stays exactly where it is.
    const double before = time_.barAt(stepOf(before_)).beatAt(stepOf(before_));
    const double beat = std::abs(before - beat_->value()) < kSamePlace ? before : beat_->value();
    return start + (beat - 1.0) * bar.signature.beatLength();
}

TimeEntry TimeEntryDialog::entry() const
{
    const double place = step();
    if (const auto* tempo = std::get_if<Tempo>(&before_))
        return std::abs(tempo_->value() - tempo->beats()) < 0.05
                   ? TimeEntry(Tempo{place, tempo->microsecondsPerBeat})
                   : TimeEntry(Tempo::ofBeats(place, tempo_->value()));
    if (std::holds_alternative<TimeSignature>(before_))
        return TimeSignature{place, count_->value(), choice_->currentData().toInt()};
    if (std::holds_alternative<KeySignature>(before_)) {
        const int value = choice_->currentData().toInt();
        const bool isMinor = value % kModes != 0;
        return KeySignature{place, (value - (isMinor ? 1 : 0)) / kModes, isMinor};
    }
    if (text_->text() == entryText(before_))
        return movedTo(before_, place);
    return Marker{place, text_->text().toStdString()};
}

} // namespace velmora
