#include "desktop/instruments/InstrumentPanel.h"

#include "app/AppDelegate.h"
#include "desktop/instruments/InstrumentMenu.h"
#include "desktop/instruments/PlayingControls.h"
#include "desktop/instruments/ProgramList.h"
#include "desktop/instruments/StopList.h"
#include "desktop/widgets/HelpButton.h"
#include "desktop/widgets/SearchField.h"
#include "desktop/widgets/scrolling.h"
#include "desktop/widgets/sizeText.h"
#include "desktop/widgets/stopTitle.h"

#include <QLabel>
#include <QScrollArea>
#include <QShortcut>
#include <QVBoxLayout>

namespace velmora {

namespace {

constexpr int kUsualHeight = 430, kUsualLetters = 40;

} // namespace

InstrumentPanel::InstrumentPanel(AppDelegate& application, QWidget* parent)
    : QWidget(parent), application_(application), programs_(new ProgramList), usage_(new QLabel),
      stops_(new StopList(application))
{
    setObjectName("instrumentPanel");
    setWindowTitle(tr("Instrument"));
    auto* menu = new InstrumentMenu(application_);
    usage_->setObjectName("usage");
    usage_->setToolTip(tr("Memory used by the samples of this instrument"));

    auto* top = new QHBoxLayout;
    top->addWidget(menu, 1);
    top->addWidget(new HelpButton("instruments", *this));
    auto* content = new QWidget;
    auto* column = new QVBoxLayout(content);
    column->addLayout(top);
    column->addWidget(usage_);
    column->addWidget(programs_, 1);
    column->addWidget(stops_);
    column->addWidget(new PlayingControls(application_.playing()));
    column->addStretch(); // the room that nothing needs
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(newScrollArea(content));

    auto* finding = new QShortcut(QKeySequence::Find, this);
    finding->setContext(Qt::WidgetWithChildrenShortcut);
    connect(finding, &QShortcut::activated, this, &InstrumentPanel::find);
    connect(menu, &InstrumentMenu::openRequested, this, &InstrumentPanel::openRequested);
    connect(menu, &InstrumentMenu::instrumentChosen, this, &InstrumentPanel::instrumentChosen);
    connect(menu, &InstrumentMenu::reopenRequested, this, &InstrumentPanel::reopenRequested);
    connect(menu, &InstrumentMenu::refused, this, &InstrumentPanel::refused);
    connect(programs_, &ProgramList::chosen, &application_, &AppDelegate::selectProgram);
    connect(&application_, &AppDelegate::programSelected, programs_,
            [this](int program) { programs_->showCurrent(static_cast<std::size_t>(program)); });
    connect(&application_, &AppDelegate::instrumentChanged, this, &InstrumentPanel::showInstrument);
    connect(&application_.loader(), &InstrumentLoader::finished, this,
            &InstrumentPanel::showInstrument);
    connect(&application_, &AppDelegate::volumeMoved, stops_, &StopList::showVolume);
}

QSize InstrumentPanel::sizeHint() const
{
    return {fontMetrics().averageCharWidth() * kUsualLetters, kUsualHeight};
}

void InstrumentPanel::showInstrument()
{
    std::span<const Program> programs; // which never change
    std::size_t program = 0;
    std::uint64_t usage = 0;
    std::vector<std::pair<QString, float>> stops;
    application_.player().with([&](const Instrument& instrument, const Temperament&) {
        programs = instrument.programs();
        program = instrument.program();
        usage = static_cast<std::uint64_t>(instrument.usage);
        for (std::size_t i = 0; i < instrument.numStops(); ++i)
            stops.emplace_back(stopTitle(instrument, i), instrument.getVolume(i));
    });
    const bool hasConsole = isPlayedFromConsole(application_);
    stops_->setVisible(!hasConsole);
    const bool hasPrograms = !programs.empty();
    programs_->setVisible(hasPrograms);
    if (hasPrograms) {
        programs_->showPrograms(programs);
        programs_->showCurrent(static_cast<std::size_t>(program));
    }
    usage_->setVisible(usage > 0);
    // docs/decisions.md, 114
    usage_->setText(tr("Usage:  %1").arg(sizeText(usage)));
    // Either the programs or the stops take the room that is left.
    stops_->setSizePolicy(QSizePolicy::Preferred,
                          hasPrograms ? QSizePolicy::Fixed : QSizePolicy::Expanding);
    if (!hasConsole)
        stops_->showStops(stops);
}

void InstrumentPanel::find()
{
    for (auto* field : findChildren<SearchField*>()) {
        if (!field->isVisible())
            continue;
        field->setFocus(Qt::ShortcutFocusReason);
        field->selectAll();
    }
}

} // namespace velmora
