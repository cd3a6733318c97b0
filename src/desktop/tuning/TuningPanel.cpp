#include "desktop/tuning/TuningPanel.h"

#include "app/AppDelegate.h"
#include "desktop/tuning/TuningStrip.h"
#include "desktop/tuning/tuningText.h"
#include "desktop/widgets/HelpButton.h"
#include "desktop/widgets/TwoLineDelegate.h"
#include "desktop/widgets/icons.h"
#include "desktop/widgets/noteNames.h"
#include "desktop/widgets/scrolling.h"
#include "sound/keys.h"

#include <QLabel>
#include <QListWidget>
#include <QLocale>
#include <QPushButton>
#include <QScrollArea>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace velmora {

namespace {

constexpr int kNameRole = Qt::UserRole;
constexpr int kLeastHeight = 120;
constexpr int kUsualHeight = 430, kUsualLetters = 40;
constexpr int kA4 = 69;

} // namespace

TuningPanel::TuningPanel(AppDelegate& application, QWidget* parent)
    : QWidget(parent), application_(application), list_(new QListWidget),
      strip_(new TuningStrip(application)), pitches_(new QLabel)
{
    setObjectName("tuningPanel");
    setWindowTitle(tr("Tuning"));
    list_->setAccessibleName(tr("Tuning"));
    list_->setFocusPolicy(Qt::TabFocus);
    list_->setItemDelegate(new TwoLineDelegate(list_));
    list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list_->setMinimumHeight(kLeastHeight);
    auto* openButton = new QPushButton(icon("open"), tr("Open T&uning…"));
    openButton->setToolTip(tr("Open a tuning file: a scale (.scl) or frequencies (.mtx)"));
    openButton->setFocusPolicy(Qt::TabFocus);
    pitches_->setToolTip(tr("The pitches of middle C and of the A above it in this tuning"));
    pitches_->setWordWrap(true);

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(openButton, 1);
    buttons->addWidget(new HelpButton("tunings", *this));
    auto* content = new QWidget;
    auto* column = new QVBoxLayout(content);
    column->addWidget(list_, 1);
    column->addLayout(buttons);
    column->addWidget(strip_);
    column->addWidget(pitches_);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(newScrollArea(content));

    connect(openButton, &QPushButton::clicked, this, &TuningPanel::openRequested);
    // Queued, because choosing a tuning can fill the list again.
    connect(list_, &QListWidget::currentRowChanged, this, &TuningPanel::select,
            Qt::QueuedConnection);
    connect(strip_, &TuningStrip::changed, this, &TuningPanel::showPitches);
    connect(&application_, &AppDelegate::tuningsChanged, this, &TuningPanel::showTunings);
    connect(&application_, &AppDelegate::tuningChanged, this, &TuningPanel::markCurrent);
    showTunings();
}

QSize TuningPanel::sizeHint() const
{
    return {fontMetrics().averageCharWidth() * kUsualLetters, kUsualHeight};
}

void TuningPanel::showTunings()
{
    const QSignalBlocker blocker(list_);
    const int before = list_->currentRow();
    list_->clear();
    for (const std::string& name : application_.tuningNames()) {
        const auto [title, detail] = tuningText(application_, name);
        auto* item = new QListWidgetItem(detail.isEmpty() ? title : title + '\n' + detail, list_);
        item->setData(kNameRole, QString::fromStdString(name));
        item->setToolTip(item->text());
    }
    list_->setCurrentRow(before);
    markCurrent();
}

void TuningPanel::markCurrent()
{
    const QSignalBlocker blocker(list_);
    const QString current = QString::fromStdString(application_.tuningName());
    const auto isCurrent = [&](int row) {
        return row >= 0 && list_->item(row)->data(kNameRole) == current;
    };
    // If two tunings have the same name, the one that was chosen stays marked.
    int marked = list_->currentRow();
    for (int row = 0; !isCurrent(marked) && row < list_->count(); ++row)
        marked = row;
    list_->setCurrentRow(isCurrent(marked) ? marked : -1);
    for (int row = 0; row < list_->count(); ++row) {
        QFont font = list_->font();
        font.setBold(row == list_->currentRow());
        list_->item(row)->setFont(font);
    }
}

void TuningPanel::select(int row)
{
    if (const QListWidgetItem* item = list_->item(row))
        application_.selectTuning(item->data(kNameRole).toString().toStdString());
}

void TuningPanel::showPitches()
{
    double middleC = 0.0, a4 = 0.0;
    application_.player().with([&](const Instrument&, const Temperament& temperament) {
        // Temperaments count their pitches from an octave higher.
        middleC = temperament.getPitch(kMiddleC) / 2;
        a4 = temperament.getPitch(kA4) / 2;
    });
    const QLocale locale;
    pitches_->setText(tr("%1 (middle C): %2 Hz\n%3: %4 Hz")
                          .arg(noteText(kMiddleC), locale.toString(middleC, 'f', 2), noteText(kA4),
                               locale.toString(a4, 'f', 2)));
}

} // namespace velmora
