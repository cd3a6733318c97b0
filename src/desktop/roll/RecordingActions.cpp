#include "desktop/roll/RecordingActions.h"

#include "desktop/roll/FitDialog.h"
#include "desktop/widgets/Commands.h"
#include "preferences/Preferences.h"
#include "sequencer/SequenceDocument.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QHBoxLayout>
#include <QInputDialog>
#include <QLabel>
#include <QMenu>
#include <QSlider>
#include <QWidgetAction>

namespace velmora {

RecordingActions::RecordingActions(Commands& commands)
    : metronome(commands.add("piece.metronome", tr("Piece"),
                             {tr("&Metronome"), tr("Click on the beats"), "metronome"},
                             {Qt::CTRL | Qt::Key_M})),
      punch(commands.add("piece.punch", tr("Piece"),
                         {tr("P&unch In"),
                          tr("Record only in the selected time, and replace what the channel has "
                             "there"),
                          "punch"},
                         {Qt::CTRL | Qt::SHIFT | Qt::Key_R})),
      fit(commands.add(
          "piece.fit", tr("Piece"),
          {tr("Fit to Grid…"),
           tr("Find the tempo and the bars of a free recording, and move it to them")})),
      thin(commands.add(
          "piece.thin", tr("Piece"),
          {tr("Thin Controllers…"), tr("Leave out moves of controllers that nobody hears")})),
      metronomeMenu_(std::make_unique<QMenu>(tr("Metronome and Count-&In"))),
      takesMenu_(std::make_unique<QMenu>(tr("&Takes")))
{
    metronome->setCheckable(true);
    metronome->setChecked(getPrefBool("Metronome"));
    punch->setCheckable(true);
    makeMetronomeMenu();
    connect(metronome, &QAction::toggled, this, [this](bool on) {
        setPrefBool("Metronome", on);
        takeSettings();
    });
    connect(punch, &QAction::triggered, this,
            [this](bool on) { document_->recorder().setPunches(on); });
    connect(fit, &QAction::triggered, this,
            [this] { askToFit(*document_, QApplication::activeWindow()); });
    connect(thin, &QAction::triggered, this, &RecordingActions::thinControllers);
    setDocument(nullptr);
}

RecordingActions::~RecordingActions() = default;

void RecordingActions::makeMetronomeMenu()
{
    metronomeMenu_->addSection(tr("Metronome"));
    addChoice("MetronomeUse", {tr("While Recording and Playing"), tr("Only While Recording"),
                               tr("Only While Playing")});
    metronomeMenu_->addSeparator();
    QAction* divisions = metronomeMenu_->addAction(tr("Click Between the Beats"));
    divisions->setCheckable(true);
    divisions->setChecked(getPrefBool("MetronomeDivisions"));
    connect(divisions, &QAction::toggled, this, [this](bool on) {
        setPrefBool("MetronomeDivisions", on);
        takeSettings();
    });
    addVolume();
    metronomeMenu_->addSection(tr("Count-In"));
    addChoice("CountIn", {tr("No Count-In"), tr("One Bar"), tr("Two Bars")});
}

void RecordingActions::addChoice(const char* preference, const QStringList& titles)
{
    auto* group = new QActionGroup(metronomeMenu_.get());
    for (int i = 0; i < titles.size(); ++i) {
        QAction* action = group->addAction(titles[i]);
        action->setCheckable(true);
        action->setChecked(getPrefInt(preference) == i);
        connect(action, &QAction::triggered, this, [this, preference, i] {
            setPrefInt(preference, i);
            takeSettings();
        });
    }
    metronomeMenu_->addActions(group->actions());
}

void RecordingActions::addVolume()
{
    auto* row = new QWidget;
    auto* slider = new QSlider(Qt::Horizontal);
    slider->setRange(0, 100);
    slider->setValue(getPrefInt("MetronomeVolume"));
    slider->setAccessibleName(tr("Volume of the metronome"));
    auto* label = new QLabel(tr("&Volume"));
    label->setBuddy(slider);
    auto* layout = new QHBoxLayout(row);
    layout->addWidget(label);
    layout->addWidget(slider);
    connect(slider, &QSlider::valueChanged, this, [this](int percent) {
        setPrefInt("MetronomeVolume", percent);
        emit volumeChanged(static_cast<float>(percent) / 100.0F);
    });
    auto* action = new QWidgetAction(metronomeMenu_.get());
    action->setText(tr("Volume of the metronome"));
    action->setDefaultWidget(row); // takes ownership
    metronomeMenu_->addAction(action);
}

void RecordingActions::setDocument(SequenceDocument* document)
{
    if (document_ != nullptr) {
        document_->disconnect(this);
        document_->recorder().disconnect(this);
    }
    document_ = document;
    punch->setEnabled(document_ != nullptr && document_->reading() == Reading::Musical);
    if (document_ != nullptr) {
        connect(document_, &SequenceDocument::changed, this, &RecordingActions::showTakes);
        connect(&document_->recorder(), &Recorder::optionsChanged, this,
                &RecordingActions::showOptions);
        takeSettings();
    }
    showOptions();
    showTakes();
}

void RecordingActions::thinControllers()
{
    constexpr int kUsual = 2, kMost = 32;
    bool isWanted = false;
    const int tolerance = QInputDialog::getInt(QApplication::activeWindow(), tr("Thin Controllers"),
                                               tr("Leave out changes of at most this many of 127:"),
                                               kUsual, 0, kMost, 1, &isWanted);
    if (isWanted)
        document_->setControllers(thinned(document_->controllers(), tolerance),
                                  tr("Thin Controllers"));
}

void RecordingActions::takeSettings()
{
    if (document_ == nullptr)
        return;
    const auto use = static_cast<MetronomeUse>(getPrefInt("MetronomeUse"));
    const bool isOn = metronome->isChecked();
    document_->transport().setMetronome(
        {.whilePlaying = isOn && use != MetronomeUse::WhileRecording,
         .whileRecording = isOn && use != MetronomeUse::WhilePlaying,
         .divides = getPrefBool("MetronomeDivisions"),
         .countIn = getPrefInt("CountIn")});
}

void RecordingActions::showOptions()
{
    punch->setChecked(document_ != nullptr && document_->recorder().punches());
}

void RecordingActions::showTakes()
{
    takesMenu_->clear();
    const bool areAny = document_ != nullptr && document_->recorder().takes().size() > 1;
    takesMenu_->setEnabled(areAny);
    emit takesChanged(areAny);
    const bool isMusical = document_ != nullptr && document_->reading() == Reading::Musical;
    fit->setEnabled(isMusical && !document_->sequence().notes().empty());
    thin->setEnabled(isMusical && !document_->controllers().empty());
    if (!areAny)
        return;
    const auto& takes = document_->recorder().takes();
    const auto chosen = document_->chosenTake();
    for (std::size_t i = 0; i < takes.size(); ++i) {
        QAction* action = takesMenu_->addAction(
            tr("Take %1: %n note(s)", nullptr, static_cast<int>(takes[i].notes.size())).arg(i + 1));
        action->setCheckable(true);
        action->setChecked(i == chosen);
        // The choice shows the menu anew, which must not happen while it is open.
        connect(
            action, &QAction::triggered, this, [this, i] { document_->chooseTake(i); },
            Qt::QueuedConnection);
    }
}

void RecordingActions::addTo(QMenu& piece) const
{
    piece.addAction(metronome);
    piece.addMenu(metronomeMenu_.get());
    piece.addAction(punch);
    piece.addMenu(takesMenu_.get());
    piece.addActions({fit, thin});
}

} // namespace velmora
