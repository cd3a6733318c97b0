#include "desktop/console/ConsolePanel.h"

#include "app/AppDelegate.h"
#include "desktop/console/ConsoleActions.h"
#include "desktop/console/ConsoleView.h"
#include "desktop/console/ManualsDialog.h"
#include "desktop/widgets/stopTitle.h"

#include <QMenu>
#include <QShortcut>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include <utility>

namespace velmora {

namespace {

constexpr int kUsualHeight = 300, kUsualColumns = 90;

} // namespace

ConsolePanel::ConsolePanel(AppDelegate& application, ConsoleActions& actions)
    : application_(application), view_(new ConsoleView(application))
{
    auto* bar = new QToolBar; // which has a menu of what does not fit
    bar->addAction(actions.set);
    for (QAction* registration : actions.registrations)
        bar->addAction(registration);
    bar->addSeparator();
    bar->addActions({actions.cancel, actions.tutti});
    bar->addSeparator();
    QAction* named = actions.named().menuAction();
    bar->addAction(named);
    bar->addAction(actions.manuals);
    auto* namedButton = qobject_cast<QToolButton*>(bar->widgetForAction(named));
    namedButton->setPopupMode(QToolButton::InstantPopup);
    for (auto* button : bar->findChildren<QToolButton*>())
        button->setFocusPolicy(Qt::TabFocus);
    registrations_ = bar;

    auto* column = new QVBoxLayout(this);
    column->addWidget(bar);
    column->addWidget(view_, 1);

    OrganConsole& organ = application_.organ();
    connect(view_, &ConsoleView::drawn, this, &ConsolePanel::draw);
    connect(view_, &ConsoleView::volumeChosen, this, &ConsolePanel::setVolume);
    connect(view_, &ConsoleView::swellMoved, &organ, &OrganConsole::openSwell);
    connect(&organ, &OrganConsole::moved, this, &ConsolePanel::showStates);
    connect(&application_, &AppDelegate::instrumentChanged, this, &ConsolePanel::showInstrument);
    connect(&application_.loader(), &InstrumentLoader::stopsChanged, this,
            &ConsolePanel::showLoadStates);
    connect(&application_, &AppDelegate::volumeMoved, this, &ConsolePanel::showVolume);
    connect(actions.manuals, &QAction::triggered, this,
            [this] { ManualsDialog(application_, window()).exec(); });
    auto* finding = new QShortcut(QKeySequence::Find, this);
    finding->setContext(Qt::WidgetWithChildrenShortcut);
    connect(finding, &QShortcut::activated, view_, &ConsoleView::find);
}

QSize ConsolePanel::sizeHint() const
{
    return {fontMetrics().averageCharWidth() * kUsualColumns, kUsualHeight};
}

void ConsolePanel::showInstrument()
{
    const bool isOrgan = application_.organ().definition() != nullptr;
    const bool isNeeded = isPlayedFromConsole(application_);
    registrations_->setVisible(isOrgan);
    if (isOrgan)
        showOrgan();
    else if (isNeeded)
        showStops();
    else
        view_->showKnobs({}, {}, ConsoleView::Swells::None);
    if (std::exchange(isNeeded_, isNeeded) != isNeeded)
        emit neededChanged(isNeeded);
}

void ConsolePanel::showOrgan()
{
    const ConsoleDefinition& organ = *application_.organ().definition();
    std::vector<QString> divisions;
    for (const ConsoleDefinition::Division& division : organ.divisions)
        divisions.push_back(QString::fromStdString(division.name));
    std::vector<ConsoleView::Knob> knobs;
    for (std::size_t i = 0; i < organ.stops.size(); ++i)
        knobs.push_back({Drawknob::Kind::Stop, i, QString::fromStdString(organ.stops[i].name),
                         organ.stops[i].division});
    for (std::size_t i = 0; i < organ.couplers.size(); ++i)
        knobs.push_back({Drawknob::Kind::Coupler, i, QString::fromStdString(organ.couplers[i].name),
                         organ.couplers[i].from});
    view_->showKnobs(divisions, knobs, ConsoleView::Swells::Shown);
    showStates();
    showLoadStates();
}

void ConsolePanel::showLoadStates()
{
    application_.player().with([&](const Instrument& instrument, const Temperament&) {
        const auto* organ = dynamic_cast<const OrganInstrument*>(&instrument);
        for (std::size_t i = 0; organ != nullptr && i < organ->numStops(); ++i)
            view_->showLoadState(i, organ->loadState(i));
    });
}

void ConsolePanel::showStops()
{
    volumes_.clear();
    std::vector<ConsoleView::Knob> knobs;
    application_.player().with([&](const Instrument& instrument, const Temperament&) {
        for (std::size_t i = 0; i < instrument.numStops(); ++i) {
            knobs.push_back({Drawknob::Kind::Stop, i, stopTitle(instrument, i), 0});
            volumes_.push_back(instrument.getVolume(i));
        }
    });
    view_->showKnobs({tr("Stops")}, knobs, ConsoleView::Swells::None);
    const std::vector<float> volumes = volumes_;
    for (std::size_t i = 0; i < volumes.size(); ++i) {
        volumes_[i] = 1.0F;
        showVolume(i, volumes[i]);
    }
}

void ConsolePanel::showStates()
{
    const ConsoleState state = application_.organ().state();
    for (std::size_t i = 0; i < state.drawn.stops.size(); ++i)
        view_->showState(Drawknob::Kind::Stop, i, state.drawn.stops[i], state.gains.at(i));
    for (std::size_t i = 0; i < state.drawn.couplers.size(); ++i)
        view_->showState(Drawknob::Kind::Coupler, i, state.drawn.couplers[i], 1.0F);
    for (std::size_t i = 0; i < state.swells.size(); ++i)
        view_->showSwell(i, state.swells[i]);
}

void ConsolePanel::draw(Drawknob::Kind kind, std::size_t number, bool isDrawn)
{
    OrganConsole& organ = application_.organ();
    if (kind == Drawknob::Kind::Coupler)
        organ.drawCoupler(number, isDrawn);
    else if (organ.definition() != nullptr)
        organ.draw(number, isDrawn);
    else
        application_.setVolumeOfStop(number, isDrawn ? volumes_.at(number) : 0.0F);
}

void ConsolePanel::setVolume(std::size_t stop, float volume)
{
    OrganConsole& organ = application_.organ();
    if (organ.definition() != nullptr) {
        organ.setGain(stop, volume);
        return;
    }
    application_.setVolumeOfStop(stop, volume);
    showVolume(stop, volume);
}

void ConsolePanel::showVolume(std::size_t stop, float volume)
{
    if (application_.organ().definition() != nullptr || stop >= volumes_.size())
        return; // `moved` says more about an organ
    if (volume > 0.0F)
        volumes_[stop] = volume;
    view_->showState(Drawknob::Kind::Stop, stop, volume > 0.0F, volumes_[stop]);
}

} // namespace velmora
