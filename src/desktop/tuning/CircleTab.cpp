#include "desktop/tuning/CircleTab.h"

#include "desktop/tuning/CircleView.h"
#include "desktop/tuning/TuningReader.h"
#include "desktop/tuning/intervalText.h"
#include "desktop/tuning/numberTable.h"
#include "desktop/widgets/noteNames.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLocale>
#include <QStackedWidget>
#include <QTableWidget>

namespace velmora {

namespace {

constexpr int kLowestOctave = 1, kHighestOctave = 7, kMiddleOctave = 4;

/// The positions in the menu of numbers.
constexpr int kBeats = 1, kTable = 2;

} // namespace

CircleTab::CircleTab(TuningReader& reader)
    : reader_(reader), view_(new CircleView),
      fifths_(newNumberTable(
          {tr("Note"), tr("Cents"), tr("Fifth"), tr("Beats/s"), tr("Major third"), tr("Beats/s")},
          tr("Fifths and thirds"))),
      degrees_(newNumberTable(
          {tr("Degree"), tr("Cents"), tr("Nearest interval"), tr("From pure"), tr("Beats/s")},
          tr("Degrees of the scale"))),
      pages_(new QStackedWidget), octave_(new QComboBox), numbers_(new QComboBox)
{
    for (QWidget* page : std::initializer_list<QWidget*>{view_, fifths_, degrees_})
        pages_->addWidget(page);
    for (int octave = kLowestOctave; octave <= kHighestOctave; ++octave)
        octave_->addItem(tr("Octave %1").arg(octave));
    octave_->setCurrentIndex(kMiddleOctave - kLowestOctave);
    octave_->setAccessibleName(tr("Octave of the beats"));
    octave_->setToolTip(tr("Middle C begins octave 4. An octave higher, everything beats twice as "
                           "fast."));
    numbers_->addItems({tr("Cents from pure"), tr("Beats per second"), tr("Table")});
    numbers_->setAccessibleName(tr("What the circle shows"));

    auto* row = new QHBoxLayout;
    row->addWidget(numbers_);
    row->addStretch();
    row->addWidget(octave_);
    auto* column = new QVBoxLayout(this);
    column->addWidget(pages_, 1);
    column->addLayout(row);
    reader_.serve(*this);
    connect(&reader_, &TuningReader::read, this, &CircleTab::showCircle);
    connect(octave_, &QComboBox::currentIndexChanged, this, &CircleTab::showCircle);
    connect(numbers_, &QComboBox::currentIndexChanged, this, [this](int index) {
        using Numbers = CircleView::Numbers;
        view_->showNumbers(index == kBeats ? Numbers::Beats : Numbers::Cents);
        fillTable();
    });
}

void CircleTab::showCircle()
{
    if (!isVisible())
        return;
    const Circle circle(reader_.moment(), octave_->currentIndex() + kLowestOctave);
    if (circle == view_->circle())
        return;
    view_->showCircle(circle);
    fillTable();
}

void CircleTab::fillTable()
{
    const Circle& circle = view_->circle();
    QTableWidget* table = circle.isOfFifths ? fifths_ : degrees_;
    const bool isTable = numbers_->currentIndex() == kTable;
    pages_->setCurrentWidget(isTable ? static_cast<QWidget*>(table) : view_);
    if (!isTable)
        return;
    const QLocale locale;
    QList<QStringList> rows;
    for (const CircleNote& note : circle.notes) {
        const QString cents = locale.toString(note.cents, 'f', 1);
        if (circle.isOfFifths)
            rows += QStringList{note.sounds ? tr("%1 (sounds)").arg(toneText(note.name))
                                            : toneText(note.name),
                                cents,
                                centsText(note.fifth.distance),
                                beatsText(note.fifth.beatsPerSecond),
                                centsText(note.third.distance),
                                beatsText(note.third.beatsPerSecond)};
        else
            rows +=
                QStringList{QString::fromStdString(note.name), cents, intervalText(note.fifth),
                            centsText(note.fifth.distance), beatsText(note.fifth.beatsPerSecond)};
    }
    showRows(*table, rows);
}

} // namespace velmora
