#include "desktop/shell/SequenceWindow.h"

#include "app/AppDelegate.h"
#include "desktop/roll/SequenceActions.h"
#include "desktop/roll/SequenceScrollView.h"
#include "desktop/roll/SequenceStatus.h"
#include "desktop/roll/SequenceView.h"
#include "desktop/roll/TransportBar.h"
#include "desktop/shell/Commands.h"
#include "desktop/shell/exportAudio.h"
#include "desktop/tuning/TuningStrip.h"
#include "desktop/widgets/icons.h"
#include "desktop/widgets/windowPlace.h"
#include "preferences/Preferences.h"
#include "preferences/settings.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QMenuBar>
#include <QStyle>
#include <QVBoxLayout>

#include <utility>

namespace velmora {

namespace {

constexpr int kDefaultWindowHeight = 640;
constexpr const char* kStripKey = "tuningStrip";

} // namespace

SequenceWindow::SequenceWindow(AppDelegate& application, Commands& commands, const QString& name,
                               RecoveryFile recovery)
    : application_(application), commands_(commands), document_(application.player()),
      editor_(document_), clock_(document_.transport()), keeper_(document_, std::move(recovery)),
      saver_(*this, document_, commands, name),
      actions_(std::make_unique<SequenceActions>(document_, editor_)),
      scrollView_(new SequenceScrollView), tuningStrip_(new TuningStrip(application))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setContextMenuPolicy(Qt::NoContextMenu); // the default menu can hide the toolbar
    makeView();
    makeMenus();
    setStatusBar(new SequenceStatus(document_));
    connect(&document_, &SequenceDocument::changed, this, &SequenceWindow::showTitle);
    connect(&document_.transport(), &Transport::frame, this, &SequenceWindow::showTitle);
    connect(&document_.undoStack(), &QUndoStack::cleanChanged, this, &SequenceWindow::showTitle);
    connect(&saver_, &SequenceSaver::saved, this, &SequenceWindow::showTitle);
    // The release of a held key may now go to another window.
    connect(qApp, &QApplication::focusChanged, this, [this] { editor_.releaseKeys(); });
    showTitle();
    fitToScreen();
    rememberPlace(*this, "sequence");
}

SequenceWindow::~SequenceWindow()
{
    if (!isSettled_)
        keeper_.keepForNextStart();
    qApp->disconnect(this);
    // The widgets are destroyed after the document and must not receive its last signals.
    scrollView_->view().setDocument(nullptr, nullptr);
    document_.disconnect();
    document_.transport().disconnect();
    document_.recorder().disconnect();
    document_.undoStack().disconnect();
}

void SequenceWindow::makeView()
{
    auto* centre = new QWidget;
    auto* layout = new QVBoxLayout(centre);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(scrollView_);
    layout->addWidget(tuningStrip_);
    setCentralWidget(centre);
    scrollView_->view().setDocument(&document_, &editor_);
    auto* transport = new TransportBar(document_, *actions_, application_);
    addToolBar(transport);
    connect(transport, &TransportBar::done, this, [this] { scrollView_->setFocus(); });
    connect(scrollView_, &SequenceScrollView::zoomed, this, &SequenceWindow::zoomed);
    connect(scrollView_, &SequenceScrollView::scrolledByUser, this,
            [this] { isScrolledAway_ = document_.transport().mode() != Transport::Mode::Stopped; });
    connect(&document_.transport(), &Transport::scrolled, this, &SequenceWindow::scrollTo);
    connect(&document_.transport(), &Transport::extentChanged, this,
            &SequenceWindow::updateRollSize);
    // This is queued, so that the roll does not follow the final scrolling when playing stops.
    connect(
        &document_.transport(), &Transport::modeChanged, this, [this] { isScrolledAway_ = false; },
        Qt::QueuedConnection);
    scrollView_->setFocus();
}

void SequenceWindow::makeMenus()
{
    QMenu* file = menuBar()->addMenu(tr("&File"));
    commands_.addOpening(*file);
    file->addSeparator();
    file->addAction(icon("save"), tr("&Save"), QKeySequence::Save, this, [this] { saver_.save(); });
    file->addAction(tr("Save &As…"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S), this,
                    [this] { saver_.saveAs(); });
    file->addAction(icon("export"), tr("&Export Audio…"), QKeySequence(Qt::CTRL | Qt::Key_E), this,
                    [this] { exportAudio(*this, document_, application_); });
    file->addSeparator();
    file->addAction(tr("&Close"), QKeySequence(Qt::CTRL | Qt::Key_W), this, &QWidget::close);
    commands_.addClosing(*file);

    actions_->addEditing(*menuBar()->addMenu(tr("&Edit")));
    actions_->addTransport(*menuBar()->addMenu(tr("&Sequence")));
    commands_.addSound(*menuBar());

    makeViewMenu();
    commands_.addHelp(*menuBar());
}

void SequenceWindow::makeViewMenu()
{
    QMenu* view = menuBar()->addMenu(tr("&View"));
    const auto addZoom = [&](const char* picture, const QString& text, const QKeySequence& shortcut,
                             void (SequenceScrollView::*zoom)(int), int notches) {
        view->addAction(icon(picture), text, shortcut, this,
                        [this, zoom, notches] { (scrollView_->*zoom)(notches); });
    };
    addZoom("zoom-in", tr("Zoo&m In"), QKeySequence::ZoomIn, &SequenceScrollView::zoomSteps, 1);
    addZoom("zoom-out", tr("Zoom &Out"), QKeySequence::ZoomOut, &SequenceScrollView::zoomSteps, -1);
    addZoom("zoom-in", tr("&Wider Keys"), QKeySequence(Qt::CTRL | Qt::ALT | Qt::Key_Plus),
            &SequenceScrollView::zoomKeys, 1);
    addZoom("zoom-out", tr("Narrowe&r Keys"), QKeySequence(Qt::CTRL | Qt::ALT | Qt::Key_Minus),
            &SequenceScrollView::zoomKeys, -1);
    view->addSeparator();
    QAction* strip = view->addAction(icon("tuning"), tr("&Tuning Strip"), this, [this](bool on) {
        setPreference(kStripKey, on);
        tuningStrip_->setVisible(on);
    });
    strip->setCheckable(true);
    strip->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_T));
    strip->setChecked(preference(kStripKey).toBool());
    tuningStrip_->setVisible(strip->isChecked());
    view->addAction(commands_.noteNames);
    view->addSeparator();
    commands_.addWindows(*view);
}

void SequenceWindow::fitToScreen()
{
    const int keys = getPrefInt("KeyRangeHi") - getPrefInt("KeyRangeLo") + 1;
    const int width = keys * getPrefInt("KeyWidth") +
                      style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
    resize(QSize(width, kDefaultWindowHeight).boundedTo(roomFor(*this)));
}

void SequenceWindow::showDocument()
{
    document_.practice().midiInput(); // finds the first notes to practise
    updateRollSize();
    showTitle();
}

void SequenceWindow::redraw()
{
    scrollView_->view().update();
}

void SequenceWindow::updateRollSize()
{
    scrollView_->updateSize(document_.transport().extent());
}

void SequenceWindow::handleKey(const QKeyEvent& event)
{
    scrollView_->view().handleKey(event);
}

void SequenceWindow::perform(LearnedAction::Kind action)
{
    const Transport::Mode mode = document_.transport().mode();
    const bool stops = action == LearnedAction::Kind::Stop;
    if (action == LearnedAction::Kind::Play || (stops && mode == Transport::Mode::Playing))
        actions_->play->trigger();
    if (action == LearnedAction::Kind::Record || (stops && mode == Transport::Mode::Recording))
        actions_->record->trigger();
}

void SequenceWindow::scrollTo(double step)
{
    if (!isScrolledAway_)
        scrollView_->scrollVertically(step * getPrefInt("KeyHeight"));
}

void SequenceWindow::showTitle()
{
    // A file name may contain "[*]", Qt's placeholder for the mark of a modified window. Doubling
    // it shows it as it is.
    setWindowTitle(saver_.displayName().replace("[*]", "[*][*]") + "[*]");
    setWindowModified(document_.isModified());
}

void SequenceWindow::showEvent(QShowEvent* event)
{
    QMainWindow::showEvent(event);
    if (std::exchange(wasShown_, true))
        return;
    updateRollSize();
    scrollView_->scrollTo({getPrefInt("KeyRangeLo") * getPrefInt("KeyWidth"), 0});
}

void SequenceWindow::closeWithoutAsking()
{
    isSettled_ = true;
    close();
}

void SequenceWindow::closeEvent(QCloseEvent* event)
{
    if (!isSettled_ && !saver_.askToClose()) {
        event->ignore();
        return;
    }
    isSettled_ = true;
    editor_.releaseKeys();
    scrollView_->view().setDocument(nullptr, nullptr);
    document_.transport().stop();
    emit closing();
}

void SequenceWindow::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        emit activated();
    if (event->type() == QEvent::WindowStateChange && isMinimized())
        emit minimized();
}

} // namespace velmora
