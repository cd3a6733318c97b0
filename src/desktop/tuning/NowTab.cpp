#include "desktop/tuning/NowTab.h"

#include "base/Clock.h"
#include "desktop/tuning/PurityLegend.h"
#include "desktop/tuning/TuningReader.h"
#include "desktop/tuning/intervalText.h"
#include "desktop/tuning/numberTable.h"
#include "desktop/widgets/noteNames.h"
#include "tuning/meantoneGamut.h"
#include "tuning/spelling.h"

#include <QCheckBox>
#include <QLabel>
#include <QLocale>
#include <QTableWidget>
#include <QVBoxLayout>

#include <cmath>

namespace velmora {

namespace {

constexpr double kChordType = 1.5; ///< The size of the chord's name relative to other texts.

QLabel* newTextLabel()
{
    auto* label = new QLabel;
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

/// Returns the other spelling of a place that lies nearer to a centre.
int otherPlace(int place, double centre)
{
    const int below = place - 12, above = place + 12;
    if (above > meantone::kFarthest)
        return below;
    if (below < -meantone::kFarthest)
        return above;
    return std::abs(above - centre) < std::abs(below - centre) ? above : below;
}

} // namespace

NowTab::NowTab(TuningReader& reader)
    : reader_(reader), chord_(newTextLabel()), keys_(newTextLabel()), reasons_(newTextLabel()),
      intervals_(
          newNumberTable({tr("Notes"), tr("Interval"), tr("Cents"), tr("From pure"), tr("Beats/s")},
                         tr("Sounding intervals"))),
      lightsKeys_(new QCheckBox(tr("Show on the keys how pure they are")))
{
    intervals_->setObjectName("intervals");
    lightsKeys_->setObjectName("lightsKeys");
    QFont large = chord_->font();
    large.setPointSizeF(large.pointSizeF() * kChordType);
    chord_->setFont(large);
    lightsKeys_->setToolTip(
        tr("Colour each sounding key by its interval that is farthest from pure "
           "with another one"));
    auto* column = new QVBoxLayout(this);
    column->addWidget(chord_);
    column->addWidget(keys_);
    column->addWidget(intervals_, 1);
    column->addWidget(reasons_);
    column->addWidget(lightsKeys_);
    column->addWidget(new PurityLegend);
    reader_.serve(*this);
    connect(&reader_, &TuningReader::read, this, &NowTab::take);
    showMoment();
}

void NowTab::take()
{
    if (!isVisible())
        return;
    held_.take(reader_.moment(), getTime());
    if (held_.moment() == shown_)
        return;
    shown_ = held_.moment();
    showMoment();
}

void NowTab::showMoment()
{
    const auto chord = soundingChord(shown_);
    const auto names = toneNames(shown_, chord);
    QStringList keys;
    for (unsigned key = 0; key < kKeys; ++key)
        if (shown_.sounding[key])
            keys += spelledKeyText(key, names);
    if (keys.isEmpty())
        chord_->setText(tr("Play a chord"));
    else
        chord_->setText(chord ? chordText(*chord, names) : keys.join(" – "));
    keys_->setText(chord ? keys.join(" – ") : QString());
    keys_->setVisible(chord.has_value());

    const QLocale locale;
    QList<QStringList> rows;
    for (const SoundingInterval& each : soundingIntervals(shown_))
        rows += QStringList{
            tr("%1–%2").arg(spelledKeyText(each.lower, names), spelledKeyText(each.upper, names)),
            intervalText(each.heard), locale.toString(each.heard.cents, 'f', 1),
            centsText(each.heard.distance), beatsText(each.heard.beatsPerSecond)};
    showRows(*intervals_, rows);
    const QString why = reasons(names);
    reasons_->setText(why);
    reasons_->setVisible(!why.isEmpty());
}

QString NowTab::reasons(const std::array<std::string, 12>& names) const
{
    const QLocale locale;
    QStringList lines;
    if (shown_.centre) {
        const double centre = *shown_.centre;
        lines +=
            tr("The music centres on %1 (%2 fifths from C).")
                .arg(toneText(placeName(static_cast<int>(std::lround(centre)))), centsText(centre));
        KeySet told;
        for (unsigned key = 0; key < kKeys; ++key) {
            const auto place = shown_.places[key % 12];
            if (!shown_.sounding[key] || !place || told[key % 12])
                continue;
            told.set(key % 12);
            const int other = otherPlace(*place, centre);
            lines += tr("%1, not %2: %3 fifths from the centre instead of %4")
                         .arg(toneText(names[key % 12]), toneText(placeName(other)),
                              locale.toString(std::abs(*place - centre), 'f', 1),
                              locale.toString(std::abs(other - centre), 'f', 1));
        }
    } else if (shown_.places[0]) {
        lines += tr("Each key keeps its usual spelling until another one is forced.");
    }
    if (shown_.places[0])
        lines += tr("Drift from the start: %1 cents").arg(centsText(shown_.drift));
    return lines.join('\n');
}

} // namespace velmora
