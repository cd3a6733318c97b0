#include "desktop/shell/Desktop.h"

#include "base/Text.h"
#include "desktop/instruments/InstrumentPanel.h"
#include "desktop/instruments/PlayingControls.h"
#include "desktop/keyboard/KeyboardView.h"
#include "desktop/shell/SequencePage.h"
#include "desktop/shell/StartPage.h"
#include "desktop/shell/StatusLine.h"
#include "desktop/shell/aboutBox.h"
#include "desktop/shell/askForFiles.h"
#include "desktop/shell/bankNotice.h"
#include "desktop/shell/tuningChoices.h"
#include "desktop/tuning/TuningPanel.h"
#include "desktop/tuning/TuningStudio.h"
#include "desktop/widgets/HelpButton.h"
#include "desktop/widgets/messages.h"
#include "desktop/widgets/windowPlace.h"
#include "platform/pathNames.h"
#include "preferences/Preferences.h"
#include "preferences/settings.h"
#include "sequencer/SequenceFile.h"
#include "sequencer/scoreFile.h"

#include <QApplication>
#include <QDir>
#include <QMessageBox>

#include <utility>

namespace velmora {

namespace {

constexpr int kReportMilliseconds = 15000, kShortMilliseconds = 3000;
constexpr const char* kSessionExtension = ".velmora";

} // namespace

Desktop::Desktop() : instrumentsWindow_(application_), metersWindow_(application_)
{
    connectCommands();
    connectWindows();
    connectTunings();
    connectProgress();
    connectPieces();
    connectStartPage();
    for (QWidget* window :
         std::initializer_list<QWidget*>{&workspace_, &instrumentsWindow_, &preferencesWindow_})
        fileDrop_.watch(*window);
    connect(&fileDrop_, &FileDrop::dropped, this, &Desktop::open, Qt::QueuedConnection);
    connect(&application_, &AppDelegate::bankLoaded, this, &Desktop::showBank);
    connect(&application_, &AppDelegate::midiInputReceived, &workspace_.keyboard(),
            &KeyboardView::midiInput);
    connect(
        &computerKeyboard_, &ComputerKeyboard::octaveMoved, &workspace_.status(),
        [this](const QString& text) { workspace_.status().showMessage(text, kShortMilliseconds); });
    connect(&application_, &AppDelegate::controlUsed, this, &Desktop::perform);
    connect(&preferencesWindow_, &PreferencesWindow::changed, this, &Desktop::updateAllViews);
    connect(&preferencesWindow_, &PreferencesWindow::changed, &application_.playing(),
            &PlayingOptions::read);
    connect(&preferencesWindow_, &PreferencesWindow::bankChanged, &application_,
            &AppDelegate::loadBank);

    rememberPlace(instrumentsWindow_, "instruments");
    workspace_.show();
    reopen(instrumentsWindow_, "instruments");
    reopen(metersWindow_, "meters");
}

Desktop::~Desktop() = default;

void Desktop::launch(const OutputSettings& output)
{
    application_.loadInBackground();
    application_.start(output);
    workspace_.status().showDevices();
    pages_.offerAbandoned();
}

void Desktop::connectCommands()
{
    connect(shell_.open, &QAction::triggered, this,
            [this] { openChosen(askForFiles(QApplication::activeWindow())); });
    connect(shell_.openInstrument, &QAction::triggered, this,
            [this] { openChosen(askForInstruments(QApplication::activeWindow())); });
    connect(shell_.openSession, &QAction::triggered, this, [this] {
        if (const QString path = askForSession(QApplication::activeWindow()); !path.isEmpty())
            open({path});
    });
    connect(shell_.saveSession, &QAction::triggered, this, &Desktop::saveSession);
    connect(shell_.silence, &QAction::triggered, this, [this] {
        pages_.stopPlaying(); // otherwise their next notes would sound
        application_.silenceAll();
    });
    connect(shell_.transposeUp, &QAction::triggered, this, [this] { transpose(1); });
    connect(shell_.transposeDown, &QAction::triggered, this, [this] { transpose(-1); });
    const auto allowTransposing = [this] {
        for (QAction* action : {shell_.transposeUp, shell_.transposeDown})
            action->setEnabled(!application_.playing().settings().isPlain);
    };
    connect(&application_.playing(), &PlayingOptions::changed, this, allowTransposing);
    allowTransposing();
    // The windows are not closed one by one, so that the open ones are reopened next time.
    connect(shell_.quit, &QAction::triggered, this, [this] {
        if (pages_.closeAll())
            QApplication::exit();
    });
    connect(&shell_, &ShellActions::recentFileChosen, this,
            [this](const QString& path) { open({path}); });
    connect(&shell_, &ShellActions::instrumentChosen, this, &Desktop::selectInstrument);
    shell_.noteNames->setChecked(getPrefBool("KeyNames"));
    connect(shell_.noteNames, &QAction::toggled, this, [this](bool on) {
        setPrefBool("KeyNames", on);
        updateAllViews();
    });
}

void Desktop::connectWindows()
{
    const auto presents = [this](QAction* action, QWidget& window) {
        connect(action, &QAction::triggered, this, [&window] { present(window); });
    };
    presents(shell_.instrumentsWindow, instrumentsWindow_);
    presents(shell_.metersWindow, metersWindow_);
    presents(shell_.preferences, preferencesWindow_);
    connect(shell_.guide, &QAction::triggered, this,
            [this] { guideWindow_.showSection(guideSectionOf(QApplication::focusWidget())); });
    for (QWidget* window : std::initializer_list<QWidget*>{&workspace_, &instrumentsWindow_,
                                                           &preferencesWindow_, &metersWindow_})
        guideWindow_.serve(*window);
    palette_.offer([this] { return tuningChoices(application_); });
    connect(shell_.commandPalette, &QAction::triggered, &palette_, &CommandPalette::open);
    connect(shell_.about, &QAction::triggered, this, [this] { showAbout(workspace_); });
    const InstrumentPanel& panel = workspace_.instrumentPanel();
    connect(&panel, &InstrumentPanel::openRequested, shell_.openInstrument, &QAction::trigger);
    connect(&panel, &InstrumentPanel::instrumentChosen, this, &Desktop::selectInstrument);
    connect(&opener_, &InstrumentOpener::failed, this, &Desktop::showError);
    connect(&opener_, &InstrumentOpener::message, this, [this](const QString& text) {
        workspace_.status().showMessage(text, kReportMilliseconds);
    });
    connect(&panel, &InstrumentPanel::reopenRequested, this, &Desktop::rereadInstrument);
    connect(&shell_, &ShellActions::reopenRequested, this, &Desktop::rereadInstrument);
    connect(&panel, &InstrumentPanel::refused, this, &Desktop::showError);
    const StatusLine& status = workspace_.status();
    connect(&status, &StatusLine::instrumentClicked, &workspace_, &Workspace::showInstrument);
    connect(&status, &StatusLine::tuningClicked, &workspace_, &Workspace::showTuning);
    connect(&status, &StatusLine::soundClicked, &preferencesWindow_,
            [this] { preferencesWindow_.presentPane(PreferencesWindow::Pane::Sound); });
    connect(&status, &StatusLine::midiClicked, &preferencesWindow_,
            [this] { preferencesWindow_.presentPane(PreferencesWindow::Pane::Midi); });
    connect(&instrumentsWindow_, &InstrumentsWindow::openRequested, shell_.openInstrument,
            &QAction::trigger);
    connect(&instrumentsWindow_, &InstrumentsWindow::instrumentChosen, this,
            &Desktop::selectInstrument);
    connect(&instrumentsWindow_, &InstrumentsWindow::refused, this, &Desktop::showError);
}

void Desktop::connectTunings()
{
    connect(&workspace_.tuningPanel(), &TuningPanel::openRequested, shell_.openTuning,
            &QAction::trigger);
    connect(shell_.openTuning, &QAction::triggered, &tuningFiles_, &TuningFiles::ask);
    connect(&workspace_.tuningStudio(), &TuningStudio::saveRequested, &tuningFiles_,
            [this](const QString& description) {
                tuningFiles_.save(workspace_.tuningStudio(), description);
            });
    connect(&tuningFiles_, &TuningFiles::chosen, this, &Desktop::open);
    connect(&tuningFiles_, &TuningFiles::opened, &shell_, &ShellActions::addRecent);
    connect(&tuningFiles_, &TuningFiles::failed, this, &Desktop::showError);
}

void Desktop::connectProgress()
{
    connect(&application_, &AppDelegate::progressStarted, &progressWindow_,
            &ProgressWindow::startProgress);
    connect(&application_, &AppDelegate::progressed, &progressWindow_,
            &ProgressWindow::updateProgress);
    connect(&progressWindow_, &ProgressWindow::cancelled, &application_,
            &AppDelegate::cancelImport);
}

void Desktop::connectPieces()
{
    connect(shell_.newSequence, &QAction::triggered, this, [this] { pages_.create(); });
    connect(&sequenceActions_, &SequenceActions::pieceWanted, this, [this] { pages_.create(); });
    // These are enabled only while there is a current piece.
    connect(shell_.save, &QAction::triggered, this, [this] { pages_.current()->saver().save(); });
    connect(shell_.saveAs, &QAction::triggered, this,
            [this] { pages_.current()->saver().saveAs(); });
    connect(shell_.exportAudio, &QAction::triggered, this,
            [this] { pages_.current()->exportAudio(); });
    connect(shell_.exportStems, &QAction::triggered, this,
            [this] { pages_.current()->exportStems(); });
    connect(shell_.close, &QAction::triggered, this, [this] { pages_.close(*pages_.current()); });
    connect(shell_.ownWindow, &QAction::triggered, this,
            [this](bool own) { pages_.setOwnWindow(*pages_.current(), own); });
    connect(&pages_, &SequencePages::opened, this,
            [this](SequencePage& page) { fileDrop_.watch(page); });
    connect(&pages_, &SequencePages::currentChanged, this, &Desktop::showPiece);
    connect(&pages_, &SequencePages::closingAll, &session_, &SessionKeeper::finish);
    connect(&pages_, &SequencePages::unprotected, this, [this](const QString& why) {
        workspace_.status().addNotice(
            tr("Unsaved changes are not protected against a crash: %1").arg(why));
    });
    const auto report = [this](const QString& text) {
        workspace_.status().showMessage(text, kReportMilliseconds);
    };
    connect(&pages_, &SequencePages::message, this, report);
    connect(&tuningExports_, &TuningExports::message, this, report);
}

void Desktop::connectStartPage()
{
    StartPage& page = workspace_.startPage();
    connect(&page, &StartPage::chordRequested, &exampleChord_, &ExampleChord::play);
    connect(&page, &StartPage::tuningsRequested, &workspace_, &Workspace::showTuning);
    connect(&page, &StartPage::instrumentRequested, shell_.openInstrument, &QAction::trigger);
    connect(&page, &StartPage::recordingRequested, sequenceActions_.record, &QAction::trigger);
    connect(&page, &StartPage::fileChosen, this, [this](const QString& path) { open({path}); });
    connect(&page, &StartPage::guideRequested, shell_.guide, &QAction::trigger);
    connect(&shell_, &ShellActions::recentFilesChanged, &page, &StartPage::showRecentFiles);
}

void Desktop::showPiece()
{
    SequencePage* piece = pages_.current();
    workspace_.setDocument(piece == nullptr ? nullptr : &piece->document());
    workspace_.setWindowTitle(piece == nullptr ? tr("Velmora") : piece->windowTitle());
    workspace_.setWindowModified(piece != nullptr && piece->isWindowModified());
    for (QAction* action : {shell_.save, shell_.saveAs, shell_.exportAudio, shell_.exportStems,
                            shell_.close, shell_.ownWindow})
        action->setEnabled(piece != nullptr);
    shell_.ownWindow->setChecked(piece != nullptr && piece->isWindow());
}

void Desktop::open(const QStringList& paths)
{
    if (paths.isEmpty())
        present(workspace_);
    waiting_ += paths;
    openWaiting();
}

void Desktop::openWaiting()
{
    if (isOpening_)
        return;
    isOpening_ = true;
    while (!waiting_.isEmpty())
        openFile(QDir().absoluteFilePath(waiting_.takeFirst()));
    isOpening_ = false;
}

void Desktop::openFile(const QString& path)
{
    const std::filesystem::path file = pathOf(path);
    const auto tuning = tuningFormatOf(file);
    const auto instrument = instrumentFormatOf(file);
    if (tuning)
        tuningFiles_.open(path, *tuning);
    else if (isMappingFile(file))
        finishOpening(path, application_.tunings().setMapping(file));
    else if (sequenceFormatOf(file) || isReadableScore(file))
        finishOpening(path, pages_.open(path));
    else if (instrument)
        openInstrument(path, *instrument);
    else if (lowerCase(file.extension().string()) == kSessionExtension)
        openSession(path);
    else
        showError(tr("%1: unrecognised file type. Velmora recognises files by their extensions, "
                     "such as .mid, .scl or .sf2.")
                      .arg(displayName(file)));
}

void Desktop::openInstrument(const QString& path, InstrumentFormat format)
{
    if (opener_.open(path, format))
        shell_.addRecent(path);
}

void Desktop::finishOpening(const QString& path, const std::string& error)
{
    if (error.empty())
        shell_.addRecent(path);
    else
        showError(translated(error));
}

void Desktop::openSession(const QString& path)
{
    const QString errors = session_.open(pathOf(path), SessionKeeper::Arrangement::Wanted);
    progressWindow_.endProgress();
    if (errors.isEmpty())
        shell_.addRecent(path);
    else
        showError(errors);
}

void Desktop::openLastSession()
{
    const bool isWanted = getPrefBool("StartAsLastTime") && SessionKeeper::hasLast() &&
                          (!SessionKeeper::wasInterrupted() || askToOpenAgain(&workspace_));
    if (isWanted) {
        const bool wasOpening = std::exchange(isOpening_, true); // see selectInstrument
        const QString errors = session_.openLast();
        progressWindow_.endProgress();
        if (!errors.isEmpty())
            workspace_.status().addNotice(
                tr("Not everything that was open last time could be opened.\n%1").arg(errors));
        isOpening_ = wasOpening;
        openWaiting();
    }
    session_.startRemembering();
}

void Desktop::saveSession()
{
    const QString path = askWhereToSaveSession(workspace_);
    if (path.isEmpty())
        return;
    try {
        session_.save(pathOf(path));
        shell_.addRecent(path);
    } catch (const std::runtime_error& error) {
        showError(QString::fromUtf8(error.what()));
    }
}

/// Does what may read an instrument again, which processes events. Files that are opened meanwhile
/// wait.
template <class Work> void Desktop::readAgain(Work work)
{
    const bool wasOpening = std::exchange(isOpening_, true);
    work();
    isOpening_ = wasOpening;
    openWaiting();
}

void Desktop::selectInstrument(std::size_t position)
{
    readAgain([&] {
        if (!opener_.select(position))
            instrumentsWindow_.showCurrent();
    });
}

void Desktop::rereadInstrument(std::size_t position, const ImportOptions& options)
{
    readAgain([&] { opener_.reopen(position, options); });
}

void Desktop::openChosen(const QStringList& paths)
{
    if (!paths.isEmpty()) // the user has not cancelled
        open(paths);
}

void Desktop::transpose(int semitones)
{
    PlayingOptions& playing = application_.playing();
    playing.setTransposition(playing.settings().transposition + semitones);
    workspace_.status().showMessage(
        tr("Transposition: %1").arg(transpositionText(playing.settings().transposition)),
        kShortMilliseconds);
}

void Desktop::perform(LearnedAction::Kind action)
{
    using Kind = LearnedAction::Kind;
    using Mode = Transport::Mode;
    const Mode mode = pages_.current() == nullptr ? Mode::Stopped
                                                  : pages_.current()->document().transport().mode();
    if (action == Kind::Silence)
        shell_.silence->trigger();
    if (action == Kind::Play || (action == Kind::Stop && mode == Mode::Playing))
        sequenceActions_.play->trigger();
    if (action == Kind::Record || (action == Kind::Stop && mode == Mode::Recording))
        sequenceActions_.record->trigger();
}

void Desktop::updateAllViews()
{
    workspace_.keyboard().update();
    pages_.updateRollSizes();
    shell_.noteNames->setChecked(getPrefBool("KeyNames"));
}

void Desktop::showBank()
{
    workspace_.status().removeNotice(bankNotice_);
    bankNotice_ = bankNotice(application_.bank());
    workspace_.status().addNotice(bankNotice_);
}

void Desktop::showError(const QString& message)
{
    if (workspace_.layout() == Workspace::Layout::Stage) // nothing must cover the keyboard
        workspace_.status().addNotice(message);
    else
        QMessageBox::warning(QApplication::activeWindow(), tr("Velmora"), message);
}

} // namespace velmora
