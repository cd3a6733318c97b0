#include "desktop/console/ConsoleView.h"

#include "app/AppDelegate.h"
#include "desktop/console/KnobGrid.h"
#include "desktop/widgets/SearchField.h"
#include "desktop/widgets/scrolling.h"

#include <QLabel>
#include <QScrollArea>
#include <QSlider>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace velmora {

namespace {

constexpr int kOpen = 100; ///< Of a swell, in per cent.
constexpr int kSwellWidth = 140;

} // namespace

ConsoleView::ConsoleView(AppDelegate& application)
    : application_(application), search_(new SearchField(tr("Find a stop"))),
      scrollArea_(newScrollArea(new QWidget))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(search_);
    layout->addWidget(scrollArea_, 1);
    connect(search_, &QLineEdit::textChanged, this, &ConsoleView::filter);
    connect(search_, &SearchField::left, this, [this] {
        if (const auto knobs = shownKnobs(); !knobs.empty())
            focus(*knobs.front());
    });
}

void ConsoleView::showKnobs(const std::vector<QString>& divisions, const std::vector<Knob>& knobs,
                            Swells swells)
{
    knobs_ = knobs;
    divisions_.assign(divisions.size(), {});
    drawknobs_.clear();
    reachable_ = nullptr;
    auto* content = new QWidget;
    auto* column = new QVBoxLayout(content);
    column->setContentsMargins({});
    for (std::size_t number = 0; number < divisions.size(); ++number)
        if (std::ranges::find(knobs, number, &Knob::division) != knobs.end())
            addDivision(*column, divisions[number], number, swells);
    column->addStretch();
    for (const Knob& knob : knobs_)
        addKnob(knob);
    scrollArea_->setWidget(content); // deletes the last one
    search_->clear();
    filter();
}

void ConsoleView::addDivision(QVBoxLayout& column, const QString& name, std::size_t number,
                              Swells swells)
{
    Division& division = divisions_[number];
    division.header = new QWidget;
    auto* header = new QHBoxLayout(division.header);
    header->setContentsMargins({});
    auto* title = new QLabel(name);
    QFont bold = title->font();
    bold.setBold(true);
    title->setFont(bold);
    title->setTextFormat(Qt::PlainText);
    header->addWidget(title, 1);
    if (swells == Swells::Shown) {
        auto* label = new QLabel(tr("Swell:"));
        division.swell = new QSlider(Qt::Horizontal);
        division.swell->setRange(0, kOpen);
        division.swell->setPageStep(kOpen / 10);
        division.swell->setMaximumWidth(kSwellWidth);
        division.swell->setFocusPolicy(Qt::TabFocus);
        division.swell->setAccessibleName(tr("Swell of %1").arg(name));
        division.swell->setToolTip(tr("How far the swell of %1 is open").arg(name));
        leaveWheelToScrolling(*division.swell);
        header->addWidget(label);
        header->addWidget(division.swell);
        connect(division.swell, &QSlider::valueChanged, this, [this, number](int percent) {
            emit swellMoved(number, static_cast<float>(percent) / kOpen);
        });
    }
    division.header->setVisible(divisions_.size() > 1 || division.swell != nullptr);
    division.grid = new KnobGrid;
    column.addWidget(division.header);
    column.addWidget(division.grid);
}

void ConsoleView::addKnob(const Knob& knob)
{
    auto* drawknob = new Drawknob(application_, knob.kind, knob.number);
    drawknob->showKnob(knob.name, false, 1.0F);
    divisions_.at(knob.division).grid->add(*drawknob);
    drawknobs_.push_back(drawknob);
    connect(drawknob, &Drawknob::clicked, this,
            [this, kind = knob.kind, number = knob.number](bool isDrawn) {
                emit drawn(kind, number, isDrawn);
            });
    connect(drawknob, &Drawknob::volumeChosen, this,
            [this, number = knob.number](float volume) { emit volumeChosen(number, volume); });
    connect(drawknob, &Drawknob::entered, this, [this, drawknob] { enter(*drawknob); });
    connect(drawknob, &Drawknob::stepped, this,
            [this, drawknob](int columns, int rows) { step(*drawknob, columns, rows); });
}

void ConsoleView::showState(Drawknob::Kind kind, std::size_t number, bool isDrawn, float volume)
{
    for (std::size_t i = 0; i < knobs_.size(); ++i)
        if (knobs_[i].kind == kind && knobs_[i].number == number)
            drawknobs_[i]->showState(isDrawn, volume);
}

void ConsoleView::showLoadState(std::size_t stop, LoadState state)
{
    for (std::size_t i = 0; i < knobs_.size(); ++i)
        if (knobs_[i].kind == Drawknob::Kind::Stop && knobs_[i].number == stop)
            drawknobs_[i]->showLoadState(state);
}

void ConsoleView::showSwell(std::size_t division, float opening)
{
    if (division >= divisions_.size() || divisions_[division].swell == nullptr)
        return;
    const QSignalBlocker blocker(divisions_[division].swell);
    divisions_[division].swell->setValue(static_cast<int>(std::lround(opening * kOpen)));
}

void ConsoleView::find()
{
    search_->setFocus(Qt::ShortcutFocusReason);
    search_->selectAll();
}

void ConsoleView::filter()
{
    for (std::size_t number = 0; number < divisions_.size(); ++number) {
        Division& division = divisions_[number];
        if (division.grid == nullptr)
            continue;
        bool isAnyFound = false;
        for (std::size_t i = 0; i < knobs_.size(); ++i) {
            if (knobs_[i].division != number)
                continue;
            const bool isFound = search_->finds(knobs_[i].name);
            drawknobs_[i]->setVisible(isFound);
            isAnyFound |= isFound;
        }
        division.grid->setVisible(isAnyFound);
        division.header->setVisible(isAnyFound &&
                                    (divisions_.size() > 1 || division.swell != nullptr));
        division.grid->arrange();
    }
    if (const auto knobs = shownKnobs(); !knobs.empty())
        enter(*knobs.front());
}

void ConsoleView::enter(Drawknob& knob)
{
    if (reachable_ != nullptr)
        reachable_->setFocusPolicy(Qt::NoFocus);
    reachable_ = &knob;
    knob.setFocusPolicy(Qt::TabFocus);
    if (knob.hasFocus())
        scrollArea_->ensureWidgetVisible(&knob);
}

void ConsoleView::focus(Drawknob& knob)
{
    knob.setFocusPolicy(Qt::TabFocus);
    knob.setFocus(Qt::TabFocusReason);
}

std::vector<Drawknob*> ConsoleView::shownKnobs() const
{
    std::vector<Drawknob*> shown;
    std::ranges::copy_if(drawknobs_, std::back_inserter(shown),
                         [](const Drawknob* knob) { return !knob->isHidden(); });
    return shown;
}

void ConsoleView::step(const Drawknob& from, int columns, int rows)
{
    const auto centre = [this](const Drawknob& knob) {
        return knob.mapTo(scrollArea_->widget(), knob.rect().center());
    };
    const QPoint here = centre(from);
    Drawknob* nearest = nullptr;
    QPoint least;
    for (Drawknob* knob : shownKnobs()) {
        // What lies in the wanted direction, and how far away: along it, and beside it.
        const QPoint away = centre(*knob) - here;
        const QPoint distance = columns != 0 ? QPoint(away.x() * columns, std::abs(away.y()))
                                             : QPoint(away.y() * rows, std::abs(away.x()));
        const bool isInLine = columns == 0 || distance.y() == 0;
        const bool isNearer = nearest == nullptr || distance.x() < least.x() ||
                              (distance.x() == least.x() && distance.y() < least.y());
        if (distance.x() > 0 && isInLine && isNearer) {
            nearest = knob;
            least = distance;
        }
    }
    if (nearest != nullptr)
        focus(*nearest);
    else if (rows < 0)
        search_->setFocus(Qt::TabFocusReason);
}

} // namespace velmora
