#include "desktop/shell/Workspace.h"

#include "app/AppDelegate.h"
#include "desktop/console/ConsoleActions.h"
#include "desktop/console/ConsolePanel.h"
#include "desktop/console/DivisionChooser.h"
#include "desktop/instruments/InstrumentPanel.h"
#include "desktop/keyboard/KeyboardView.h"
#include "desktop/practice/FallingNotes.h"
#include "desktop/practice/PracticePanel.h"
#include "desktop/roll/SequenceActions.h"
#include "desktop/roll/TransportBar.h"
#include "desktop/roll/VoicesPanel.h"
#include "desktop/shell/PracticeResults.h"
#include "desktop/shell/ShellActions.h"
#include "desktop/shell/StageView.h"
#include "desktop/shell/StartPage.h"
#include "desktop/shell/StatusLine.h"
#include "desktop/tuning/TuningPanel.h"
#include "desktop/tuning/TuningStudio.h"
#include "desktop/widgets/Commands.h"
#include "desktop/widgets/HelpButton.h"
#include "desktop/widgets/LearnMenu.h"
#include "desktop/widgets/scrolling.h"
#include "desktop/widgets/windowPlace.h"
#include "preferences/Preferences.h"
#include "preferences/settings.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDockWidget>
#include <QMenuBar>
#include <QScreen>
#include <QStackedWidget>
#include <QTabWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace velmora {

namespace {

/// Counts up when stored arrangements would no longer fit.
constexpr int kLayoutVersion = 5;
constexpr const char* kLayoutKey = "layout";

/// The first sizes of the panels in pixels.
constexpr int kInstrumentWidth = 280, kTuningWidth = 250, kConsoleHeight = 330;
constexpr int kKeyboardHeight = 150, kEditKeyboardHeight = 100, kStageKeyboardHeight = 300;
constexpr QSize kFirstSize(1240, 760);

/// With less room than this many letters between the panels, they share one side.
constexpr int kCentreLetters = 60;

/// A window of this height has no room for a console above a piece.
constexpr int kLowWindow = 900;

std::string layoutKey(Workspace::Layout layout)
{
    constexpr std::array kNames = {"play", "edit", "stage"};
    return std::string("layouts/") + kNames.at(static_cast<std::size_t>(layout));
}

/// Brings a panel before those that share its place. `raise` alone does nothing for the panel that
/// was raised last, even if the user has clicked the tab of another since.
void bringForward(QDockWidget& dock)
{
    dock.lower();
    dock.raise();
}

} // namespace

Workspace::Workspace(AppDelegate& application, Commands& commands, ShellActions& shell,
                     SequenceActions& actions, ConsoleActions& console)
    : application_(application), shell_(shell),
      keyboard_(new KeyboardView(application, application.player().liveKeys())),
      instrument_(new InstrumentPanel(application)), tuning_(new TuningPanel(application)),
      studio_(new TuningStudio(application)), console_(new ConsolePanel(application, console)),
      voices_(new VoicesPanel(application)), practice_(new PracticePanel),
      practiceResults_(new PracticeResults(*this)), fallingNotes_(new FallingNotes(*keyboard_)),
      status_(new StatusLine(application)), transport_(new TransportBar(actions, application)),
      startPage_(new StartPage), tabs_(new QTabWidget), centre_(new QStackedWidget)
{
    setWindowTitle(tr("Velmora"));
    setContextMenuPolicy(Qt::NoContextMenu); // the default menu can hide the transport
    setDockNestingEnabled(true);
    setCorner(Qt::TopLeftCorner, Qt::LeftDockWidgetArea);
    setCorner(Qt::TopRightCorner, Qt::RightDockWidgetArea);
    setCorner(Qt::BottomLeftCorner, Qt::BottomDockWidgetArea);
    setCorner(Qt::BottomRightCorner, Qt::BottomDockWidgetArea);
    tabs_->setDocumentMode(true);
    tabs_->setAccessibleName(tr("Open pieces"));
    tabs_->setTabsClosable(true);
    tabs_->setMovable(true);
    centre_->addWidget(startPage_);
    centre_->addWidget(tabs_);
    centre_->addWidget(new StageView(application, *shell.stageLayout));
    setCentralWidget(centre_);
    setStatusBar(status_);
    auto* keyboardPanel = new QWidget;
    auto* keyboardColumn = new QVBoxLayout(keyboardPanel);
    keyboardColumn->setContentsMargins({});
    keyboardColumn->addWidget(new DivisionChooser(application));
    keyboardColumn->addWidget(fallingNotes_, 1);
    keyboardColumn->addWidget(keyboard_, 1);
    fallingNotes_->setVisible(getPrefBool("FallingNotes"));
    keyboardDock_ = addPanel("keyboard", tr("Keyboard"), keyboardPanel, *shell.keyboard);
    instrumentDock_ = addPanel("instrument", tr("Instrument"), instrument_, *shell.instrument);
    tuningDock_ = addPanel("tuning", tr("Tuning"), tuning_, *shell.tuning);
    studioDock_ = addPanel("tuningStudio", tr("Tuning Studio"), studio_, *shell.tuningStudio);
    practiceDock_ = addPanel("practice", tr("Practice"), newScrollArea(practice_), *shell.practice);
    consoleDock_ = addPanel("console", tr("Console"), console_, *shell.console);
    voicesDock_ = addPanel("voices", tr("Voices"), voices_, *shell.voices);
    addHelpButton(*keyboardDock_, "playing");
    addHelpButton(*consoleDock_, "the-console");
    addHelpButton(*studioDock_, "the-tuning-studio");
    addHelpButton(*practiceDock_, "practising");
    addHelpButton(*voicesDock_, "voices");
    makeMenus(actions, console);
    makeTransport();
    for (const Commands::Command& command : commands.all())
        addAction(command.action); // for the shortcuts of those that are in no menu
    connectCommands();

    resize(kFirstSize.boundedTo(roomFor(*this)));
    rememberPlace(*this, "workspace");
    layout_ = static_cast<Layout>(std::clamp(preference(kLayoutKey).toInt(), 0, 1));
    restoreLayout();
    connect(qApp, &QApplication::aboutToQuit, this, &Workspace::saveLayout);
}

QDockWidget* Workspace::addPanel(const char* name, const QString& title, QWidget* panel,
                                 QAction& toggle)
{
    auto* dock = new QDockWidget(title, this);
    dock->setObjectName(name);
    dock->setWidget(panel);
    connect(&toggle, &QAction::triggered, this, [this, dock, &toggle](bool on) {
        // A panel that another one covers comes to the front.
        const bool isCovered = dock->isVisible() && dock->visibleRegion().isEmpty();
        toggle.setChecked(on || isCovered);
        if (on || isCovered)
            showPanel(*dock);
        else
            dock->hide();
    });
    connect(dock->toggleViewAction(), &QAction::toggled, &toggle, &QAction::setChecked);
    return dock;
}

void Workspace::makeMenus(const SequenceActions& actions, ConsoleActions& console)
{
    shell_.addFile(*menuBar()->addMenu(tr("&File")));
    actions.addEditing(*menuBar()->addMenu(tr("&Edit")));
    actions.addTransport(*menuBar()->addMenu(tr("&Piece")));
    shell_.addSound(*menuBar());
    QMenu* consoleMenu = menuBar()->addMenu(tr("C&onsole"));
    console.addTo(*consoleMenu);
    consoleMenu->menuAction()->setVisible(false);
    connect(&console, &ConsoleActions::enabledChanged, consoleMenu->menuAction(),
            &QAction::setVisible);
    QMenu* view = menuBar()->addMenu(tr("&View"));
    actions.addZoom(*view);
    view->addSeparator();
    shell_.addPanels(*view);
    shell_.addHelp(*menuBar()->addMenu(tr("&Help")));
}

void Workspace::makeTransport()
{
    addToolBar(transport_);
    connect(transport_, &TransportBar::done, this, [this] {
        if (tabs_->currentWidget() != nullptr)
            tabs_->currentWidget()->setFocus();
    });
    auto* space = new QWidget;
    space->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    transport_->addWidget(space);
    transport_->addAction(shell_.silence);
    new LearnMenu(*transport_->widgetForAction(shell_.silence), application_,
                  {{{LearnedAction::Kind::Silence}, tr("Silence Everything")}});
    connect(tabs_, &QTabWidget::currentChanged, this, &Workspace::showCentre);
}

void Workspace::connectCommands()
{
    const auto arranges = [this](QAction* action, Layout layout) {
        connect(action, &QAction::triggered, this, [this, layout] {
            // The command for the stage also leaves it.
            setLayout(layout == Layout::Stage && layout_ == layout ? Layout::Play : layout);
        });
    };
    arranges(shell_.playLayout, Layout::Play);
    arranges(shell_.editLayout, Layout::Edit);
    arranges(shell_.stageLayout, Layout::Stage);
    connect(shell_.resetLayout, &QAction::triggered, this, &Workspace::arrange);
    connect(tuning_, &TuningPanel::shapeRequested, this, [this] { showPanel(*studioDock_); });
    connect(studio_, &TuningStudio::keysRated, keyboard_, &KeyboardView::setPurities);
    connect(console_, &ConsolePanel::neededChanged, this, &Workspace::showConsole);
    connect(practice_, &PracticePanel::finished, this,
            [this] { practiceResults_->add(*document_); });
    connect(practice_, &PracticePanel::fallingNotesToggled, fallingNotes_, &QWidget::setVisible);
    connect(shell_.nextPanel, &QAction::triggered, this, [this] { movePanelFocus(1); });
    connect(shell_.previousPanel, &QAction::triggered, this, [this] { movePanelFocus(-1); });
}

void Workspace::setDocument(SequenceDocument* document)
{
    transport_->setDocument(document);
    fallingNotes_->setDocument(document);
    practice_->setDocument(document);
    document_ = document;
    voices_->setDocument(document);
}

void Workspace::setLayout(Layout layout)
{
    if (layout == layout_)
        return;
    saveLayout();
    layout_ = layout;
    restoreLayout();
    if (QWidget* page = tabs_->currentWidget())
        page->setFocus(); // rather than what comes after a panel that is now hidden
}

std::string Workspace::arrangement() const
{
    return static_cast<char>(layout_) + saveState(kLayoutVersion).toStdString();
}

void Workspace::restoreArrangement(const std::string& bytes)
{
    constexpr auto kLast = static_cast<unsigned char>(Layout::Stage);
    if (bytes.empty() || static_cast<unsigned char>(bytes.front()) > kLast)
        return;
    setLayout(static_cast<Layout>(bytes.front()));
    restoreState(QByteArray::fromStdString(bytes.substr(1)), kLayoutVersion);
}

void Workspace::saveLayout() const
{
    setPreference(layoutKey(layout_), saveState(kLayoutVersion));
    // The program does not begin on stage, where a newcomer would miss the menus.
    setPreference(kLayoutKey, static_cast<int>(layout_ == Layout::Stage ? Layout::Play : layout_));
}

void Workspace::restoreLayout()
{
    const bool isStage = layout_ == Layout::Stage;
    // The window must not grow meanwhile: one that is larger than the screen cannot fill it.
    QWidget::layout()->setSizeConstraint(QLayout::SetNoConstraint);
    setMinimumSize(0, 0);
    menuBar()->setVisible(!isStage);
    transport_->setVisible(!isStage);
    setFont(QApplication::font(this)); // the panels have room for the type that they had here
    QApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest); // and no more
    showCentre();
    const QByteArray state = preference(layoutKey(layout_)).toByteArray();
    if (state.isEmpty() || !restoreState(state, kLayoutVersion))
        arrange();
    showConsole();
    showStage(isStage);
    const std::array actions = {shell_.playLayout, shell_.editLayout, shell_.stageLayout};
    actions.at(static_cast<std::size_t>(layout_))->setChecked(true);
}

void Workspace::arrange()
{
    for (QDockWidget* dock : {keyboardDock_, instrumentDock_, tuningDock_, studioDock_,
                              practiceDock_, consoleDock_, voicesDock_}) {
        dock->setFloating(false);
        removeDockWidget(dock);
    }
    addDockWidget(Qt::LeftDockWidgetArea, instrumentDock_);
    addDockWidget(Qt::RightDockWidgetArea, tuningDock_);
    if (layout_ != Layout::Stage && isNarrow())
        tabifyDockWidget(instrumentDock_, tuningDock_);
    addDockWidget(Qt::RightDockWidgetArea, studioDock_);
    addDockWidget(Qt::LeftDockWidgetArea, voicesDock_);
    tabifyDockWidget(tuningDock_, studioDock_);
    addDockWidget(Qt::RightDockWidgetArea, practiceDock_);
    tabifyDockWidget(studioDock_, practiceDock_);
    addDockWidget(Qt::BottomDockWidgetArea, keyboardDock_);
    if (layout_ == Layout::Stage || height() > kLowWindow)
        addDockWidget(Qt::TopDockWidgetArea, consoleDock_);
    else if (isNarrow()) // otherwise the piece needs the room above the keyboard
        tabifyDockWidget(tuningDock_, consoleDock_);
    else
        splitDockWidget(instrumentDock_, consoleDock_, Qt::Vertical);
    isConsoleNew_ = true;
    keyboardDock_->show();
    instrumentDock_->setVisible(layout_ != Layout::Edit);
    tuningDock_->setVisible(layout_ != Layout::Edit);
    studioDock_->hide();
    practiceDock_->hide();
    voicesDock_->setVisible(layout_ == Layout::Edit);
    showConsole();
    constexpr std::array kHeights = {kKeyboardHeight, kEditKeyboardHeight, kStageKeyboardHeight};
    const double type = layout_ == Layout::Stage ? kStageType : 1.0;
    resizeDocks({instrumentDock_, tuningDock_},
                {static_cast<int>(kInstrumentWidth * type), static_cast<int>(kTuningWidth * type)},
                Qt::Horizontal);
    resizeDocks({consoleDock_}, {static_cast<int>(kConsoleHeight * type)}, Qt::Vertical);
    const int room = layout_ == Layout::Stage ? screen()->size().height() * 2 / 5 : height() / 5;
    const int keyboardHeight = std::min(kHeights.at(static_cast<std::size_t>(layout_)), room);
    resizeDocks({keyboardDock_}, {keyboardHeight}, Qt::Vertical);
    bringForward(*instrumentDock_);
}

bool Workspace::isNarrow() const
{
    const int panels = std::max(kInstrumentWidth, instrumentDock_->minimumSizeHint().width()) +
                       std::max(kTuningWidth, tuningDock_->minimumSizeHint().width());
    return width() - panels < kCentreLetters * fontMetrics().averageCharWidth();
}

void Workspace::showStage(bool isStage)
{
    if (!isStage)
        QWidget::layout()->setSizeConstraint(QLayout::SetDefaultConstraint);
    else if (!enlargeType(*this)) {
        arrange();
        tabifyDockWidget(instrumentDock_, tuningDock_);
        bringForward(*instrumentDock_);
    }
    QWidget::layout()->activate();
    if (isStage != isFullScreen())
        setWindowState(windowState() ^ Qt::WindowFullScreen);
}

void Workspace::showConsole()
{
    shell_.console->setEnabled(console_->isNeeded());
    consoleDock_->setVisible(console_->isNeeded() && layout_ != Layout::Edit);
    if (!consoleDock_->isVisibleTo(this) || !std::exchange(isConsoleNew_, false) ||
        dockWidgetArea(consoleDock_) != Qt::LeftDockWidgetArea)
        return;
    // A panel gets a size only while it is visible.
    resizeDocks({instrumentDock_, consoleDock_}, {1, 2}, Qt::Vertical);
    bringForward(*consoleDock_);
}

void Workspace::showCentre()
{
    centre_->setCurrentIndex(layout_ == Layout::Stage ? 2 : tabs_->count() > 0 ? 1 : 0);
}

void Workspace::showPanel(QDockWidget& dock)
{
    dock.show();
    bringForward(dock);
    QWidget* panel = dock.widget();
    for (QWidget* next = panel; panel->isAncestorOf(next) || next == panel;
         next = next->nextInFocusChain()) {
        if (next->focusPolicy() & Qt::TabFocus && next->isVisible() && next->isEnabled()) {
            next->setFocus(Qt::TabFocusReason);
            return;
        }
        if (next->nextInFocusChain() == panel)
            return;
    }
}

void Workspace::movePanelFocus(int direction)
{
    std::vector<QWidget*> stops;
    if (QWidget* centre = centre_->currentWidget(); centre->isVisible())
        stops.push_back(centre);
    for (QDockWidget* dock : {instrumentDock_, voicesDock_, consoleDock_, keyboardDock_,
                              tuningDock_, studioDock_, practiceDock_})
        if (dock->isVisible())
            stops.push_back(dock);
    const auto here = std::ranges::find_if(
        stops, [](QWidget* stop) { return stop->isAncestorOf(QApplication::focusWidget()); });
    const auto count = static_cast<std::ptrdiff_t>(stops.size());
    const std::ptrdiff_t from = here == stops.end() ? 0 : here - stops.begin();
    QWidget* to = stops.at(static_cast<std::size_t>((from + direction + count) % count));
    if (auto* dock = qobject_cast<QDockWidget*>(to))
        showPanel(*dock);
    else if (tabs_->currentWidget() != nullptr)
        tabs_->currentWidget()->setFocus(Qt::TabFocusReason);
    else
        to->setFocus(Qt::TabFocusReason);
}

void Workspace::closeEvent(QCloseEvent* event)
{
    event->ignore(); // the user may cancel
    shell_.quit->trigger();
}

void Workspace::showEvent(QShowEvent* event)
{
    QMainWindow::showEvent(event);
    if (!std::exchange(wasShown_, true) && !preference(layoutKey(layout_)).isValid())
        arrange(); // the sizes of panels can only be set once the window has its own
}

} // namespace velmora
