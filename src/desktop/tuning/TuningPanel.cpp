#include "desktop/tuning/TuningPanel.h"

#include "app/AppDelegate.h"
#include "desktop/tuning/AdaptivePane.h"
#include "desktop/tuning/GlideBar.h"
#include "desktop/tuning/TranspositionBar.h"
#include "desktop/tuning/TuningStrip.h"
#include "desktop/tuning/tuningText.h"
#include "desktop/widgets/GroupedList.h"
#include "desktop/widgets/HelpButton.h"
#include "desktop/widgets/TwoLineDelegate.h"
#include "desktop/widgets/icons.h"
#include "desktop/widgets/noteNames.h"
#include "desktop/widgets/scrolling.h"
#include "sound/keys.h"
#include "tuning/historicalTemperaments.h"

#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QScrollArea>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace velmora {

namespace {

constexpr int kUsualHeight = 520, kUsualLetters = 40;
constexpr int kA4 = 69;

} // namespace

TuningPanel::TuningPanel(AppDelegate& application, QWidget* parent)
    : QWidget(parent), application_(application),
      list_(new GroupedList(tr("Find a tuning"), tr("Tuning"))),
      strip_(new TuningStrip(application)), pitches_(new QLabel)
{
    setObjectName("tuningPanel");
    setWindowTitle(tr("Tuning"));
    list_->tree().setItemDelegate(new TwoLineDelegate(list_));
    list_->tree().setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto* openButton = new QPushButton(icon("open"), tr("Open T&uning…"));
    openButton->setToolTip(tr("Open a tuning file: a scale (.scl) or frequencies (.mtx)"));
    openButton->setFocusPolicy(Qt::TabFocus);
    pitches_->setToolTip(tr("The pitches of middle C and of the A above it in this tuning"));
    pitches_->setWordWrap(true);

    auto* shapeButton = new QPushButton(tr("Shape…"));
    shapeButton->setToolTip(tr("Show the circle of fifths and what sounds, and shape the tuning"));
    shapeButton->setFocusPolicy(Qt::TabFocus);

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(openButton, 1);
    buttons->addWidget(shapeButton);
    buttons->addWidget(new HelpButton("tunings", *this));
    auto* content = new QWidget;
    auto* column = new QVBoxLayout(content);
    column->addWidget(new TranspositionBar(application.tunings()));
    column->addWidget(list_, 1);
    column->addLayout(buttons);
    column->addWidget(new AdaptivePane(application));
    column->addWidget(new GlideBar(application.playing()));
    column->addWidget(strip_);
    column->addWidget(pitches_);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(newScrollArea(content));

    connect(openButton, &QPushButton::clicked, this, &TuningPanel::openRequested);
    connect(shapeButton, &QPushButton::clicked, this, &TuningPanel::shapeRequested);
    // Queued, because choosing a tuning can fill the list again.
    connect(list_, &GroupedList::chosen, this, &TuningPanel::select, Qt::QueuedConnection);
    connect(strip_, &TuningStrip::changed, this, &TuningPanel::showPitches);
    connect(&application_.tunings(), &Tunings::listed, this, &TuningPanel::showTunings);
    connect(&application_.tunings(), &Tunings::changed, this, &TuningPanel::markCurrent);
    showTunings();
}

QSize TuningPanel::sizeHint() const
{
    return {fontMetrics().averageCharWidth() * kUsualLetters, kUsualHeight};
}

void TuningPanel::showTunings()
{
    std::vector<GroupedList::Entry> entries;
    names_.clear();
    const auto add = [&](const QString& group, const std::string& name, const TuningText& text) {
        const QString both = text.detail.isEmpty() ? text.title : text.title + '\n' + text.detail;
        entries.push_back({group, both, both});
        names_.push_back(name);
    };
    for (const std::string& name : application_.tunings().names())
        if (findHistoricalTemperament(name) == nullptr)
            add(tr("Tunings"), name, tuningText(application_, name));
    for (const HistoricalTemperament& each : historicalTemperaments())
        add(groupText(each), std::string(each.name), tuningText(each));
    list_->showEntries(std::move(entries));
    markCurrent();
}

void TuningPanel::markCurrent()
{
    // If two tunings have the same name, the one that was chosen stays marked.
    if (chosen_ >= names_.size() || names_[chosen_] != application_.tunings().name())
        chosen_ = static_cast<std::size_t>(
            std::ranges::find(names_, application_.tunings().name()) - names_.begin());
    list_->showCurrent(chosen_);
}

void TuningPanel::select(std::size_t position)
{
    chosen_ = position;
    application_.tunings().select(names_.at(position));
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
