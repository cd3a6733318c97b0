#include "desktop/shell/Desktop.h"

#include "desktop/keyboard/KeyboardView.h"
#include "desktop/shell/SequenceWindow.h"
#include "desktop/shell/StatusLine.h"
#include "desktop/shell/aboutBox.h"
#include "desktop/widgets/windowPlace.h"
#include "preferences/Preferences.h"
#include "preferences/settings.h"
#include "sequencer/KeyboardDocument.h"
#include "sequencer/SequenceFile.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QMessageBox>

#include <utility>

namespace velmora {

namespace {

constexpr const char* kFolderKey = "openFolder";
constexpr int kMessageMilliseconds = 15000;
constexpr const char* kInstruments = "*.sf2 *.gig *.organ_hauptwerk_xml *.xml *.organ";
constexpr const char* kTunings = "*.scl *.mtx";
constexpr const char* kSequences = "*.mid *.midi *.smf *.kar";

} // namespace

Desktop::Desktop()
    : commands_(application_), keyboardWindow_(application_, commands_),
      instrumentPanel_(application_), instrumentsWindow_(application_),
      sequenceWindows_(application_, commands_, keyboardWindow_.keyboard())
{
    connectCommands();
    connectProgress();
    connectSequences();
    for (QWidget* window : std::initializer_list<QWidget*>{
             &keyboardWindow_, &instrumentPanel_, &instrumentsWindow_, &preferencesWindow_})
        fileDrop_.watch(*window);
    progressWindow_.addAction(commands_.silence); // which keeps the keys from all other windows
    connect(&fileDrop_, &FileDrop::dropped, this, &Desktop::open, Qt::QueuedConnection);
    connect(&application_, &AppDelegate::bankLoaded, this, &Desktop::showBank);
    connect(&application_, &AppDelegate::midiInputReceived, this, [this] {
        if (KeyboardDocument* document = keyboardWindow_.keyboard().getDocument())
            document->midiInput();
    });
    connect(&preferencesWindow_, &PreferencesWindow::changed, this, &Desktop::updateAllViews);
    connect(&preferencesWindow_, &PreferencesWindow::bankChanged, &application_,
            &AppDelegate::loadBank);

    rememberPlace(instrumentPanel_, "instrumentPanel");
    rememberPlace(instrumentsWindow_, "instruments");
    keyboardWindow_.show();
    reopen(instrumentPanel_, "instrumentPanel");
    reopen(instrumentsWindow_, "instruments");
}

Desktop::~Desktop() = default;

void Desktop::launch()
{
    application_.applicationDidFinishLaunching();
    keyboardWindow_.status().showDevices();
    sequenceWindows_.offerAbandoned();
}

void Desktop::connectCommands()
{
    const auto presents = [this](QAction* action, QWidget& window) {
        connect(action, &QAction::triggered, this, [&window] { present(window); });
    };
    presents(commands_.keyboardWindow, keyboardWindow_);
    presents(commands_.instrumentPanel, instrumentPanel_);
    presents(commands_.instrumentsWindow, instrumentsWindow_);
    presents(commands_.preferences, preferencesWindow_);
    connect(commands_.open, &QAction::triggered, this, &Desktop::askForFiles);
    connect(commands_.silence, &QAction::triggered, this, [this] {
        sequenceWindows_.stopPlaying(); // or its next note would sound
        application_.silenceAll();
    });
    // Not through the windows' closing: what stands open is to stand open again.
    connect(commands_.quit, &QAction::triggered, this, [this] {
        if (sequenceWindows_.closeAll())
            QApplication::exit();
    });
    connect(&commands_, &Commands::openRecent, this, [this](const QString& path) { open({path}); });
    connect(&commands_, &Commands::selectInstrument, this, &Desktop::selectInstrument);
    connect(&commands_, &Commands::guideWanted, this, [this] { present(guideWindow_); });
    connect(&commands_, &Commands::aboutWanted, this, [this] { showAbout(keyboardWindow_); });
    connect(&instrumentsWindow_, &InstrumentsWindow::openWanted, this, &Desktop::askForFiles);
    connect(&instrumentsWindow_, &InstrumentsWindow::selectWanted, this,
            &Desktop::selectInstrument);
    connect(&instrumentsWindow_, &InstrumentsWindow::refused, this, &Desktop::complain);
    commands_.noteNames->setChecked(getPrefBool("KeyNames"));
    connect(commands_.noteNames, &QAction::toggled, this, [this](bool on) {
        setPrefBool("KeyNames", on);
        updateAllViews();
    });
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

void Desktop::connectSequences()
{
    connect(commands_.newSequence, &QAction::triggered, &sequenceWindows_,
            &SequenceWindows::create);
    connect(&sequenceWindows_, &SequenceWindows::opened, this,
            [this](SequenceWindow& window) { fileDrop_.watch(window); });
    connect(&sequenceWindows_, &SequenceWindows::zoomed, this, &Desktop::updateAllViews);
    connect(&keyboardWindow_, &KeyboardWindow::keyEvent, &sequenceWindows_,
            [this](const QKeyEvent* event) { sequenceWindows_.handleKey(*event); });
}

void Desktop::open(const QStringList& paths)
{
    if (paths.isEmpty())
        present(keyboardWindow_);
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
    const std::filesystem::path file(path.toStdString());
    const std::string tuning = TuningDocument::typeOf(file);
    const std::string instrument = InstrumentDocument::typeOf(file);
    if (!tuning.empty())
        openTuning(path, tuning);
    else if (!instrument.empty())
        openInstrument(path, instrument);
    else if (!sequenceTypeOf(file).empty())
        openSequence(path);
    else
        complain(tr("%1: is no kind of file that Velmora knows by its name")
                     .arg(QFileInfo(path).fileName()));
}

void Desktop::openTuning(const QString& path, const std::string& type)
{
    auto tuning = std::make_unique<TuningDocument>();
    if (!tuning->readFromURL(path.toStdString(), type)) {
        complain(QString::fromStdString(tuning->errorString()));
        return;
    }
    const std::string name = tuning->getName();
    application_.putTuning(std::move(tuning));
    application_.selectTuning(name);
    commands_.addRecent(path);
}

void Desktop::openInstrument(const QString& path, const std::string& type)
{
    const QString name = QFileInfo(path).fileName();
    if (!application_.canPlaySamples()) {
        complain(tr("%1: cannot be opened, for OpenAL has no sound output").arg(name));
        return;
    }
    auto document = std::make_unique<InstrumentDocument>();
    const bool isRead = document->readFromURL(path.toStdString(), type, application_);
    progressWindow_.endProgress();
    if (!isRead) {
        if (!document->errorString().empty())
            complain(QString::fromStdString(document->errorString()));
        return;
    }
    if (document->getInstrument() == nullptr) {
        complain(tr("%1: holds no instrument that Velmora can play").arg(name));
        return;
    }
    const std::size_t skipped = document->report().skipped.size();
    application_.addInstrument(std::move(document));
    commands_.addRecent(path);
    if (skipped > 0)
        keyboardWindow_.status().showMessage(
            tr("%1: %2 files or samples were left out; Instruments › Import Report says which")
                .arg(name)
                .arg(skipped),
            kMessageMilliseconds);
}

void Desktop::openSequence(const QString& path)
{
    const std::string error = sequenceWindows_.open(path);
    if (error.empty())
        commands_.addRecent(path);
    else
        complain(QString::fromStdString(error));
}

void Desktop::selectInstrument(std::size_t position)
{
    // One that was unloaded is read again, and lets events through while it is.
    const bool wasOpening = std::exchange(isOpening_, true);
    const bool isSelected = application_.selectInstrument(position);
    progressWindow_.endProgress();
    if (!isSelected) {
        instrumentsWindow_.showCurrent();
        const std::string& why = application_.instruments().at(position)->errorString();
        if (!why.empty())
            complain(QString::fromStdString(why));
    }
    isOpening_ = wasOpening;
    openWaiting();
}

void Desktop::askForFiles()
{
    const QStringList paths = QFileDialog::getOpenFileNames(
        QApplication::activeWindow(), tr("Open"), preference(kFolderKey).toString(),
        tr("All that Velmora opens (%1);;Instruments (%2);;Tunings (%3);;Sequences (%4);;All files "
           "(*)")
            .arg(QString(kInstruments) + " " + kTunings + " " + kSequences)
            .arg(kInstruments)
            .arg(kTunings)
            .arg(kSequences));
    if (paths.isEmpty())
        return;
    setPreference(kFolderKey, QFileInfo(paths.front()).absolutePath());
    open(paths);
}

void Desktop::updateAllViews()
{
    keyboardWindow_.keyboard().updateWindowSize();
    keyboardWindow_.keyboard().update();
    sequenceWindows_.updateDocumentSizes();
    commands_.noteNames->setChecked(getPrefBool("KeyNames"));
}

void Desktop::showBank()
{
    const QString wanted = QString::fromStdString(getPrefString("GMBank"));
    const QString bank = QString::fromStdString(application_.bank().string());
    StatusLine& status = keyboardWindow_.status();
    status.removeNotice(bankNotice_);
    if (bank.isEmpty())
        bankNotice_ = tr("There is no SoundFont for the General MIDI player: it is silent. "
                         "Choose one in the preferences.");
    else if (!wanted.isEmpty() && wanted != bank)
        bankNotice_ = tr("%1 cannot be used as the General MIDI bank: %2 is.").arg(wanted, bank);
    else
        bankNotice_.clear();
    if (!bankNotice_.isEmpty())
        status.addNotice(bankNotice_);
}

void Desktop::complain(const QString& sentence)
{
    QMessageBox::warning(QApplication::activeWindow(), tr("Velmora"), sentence);
}

} // namespace velmora
