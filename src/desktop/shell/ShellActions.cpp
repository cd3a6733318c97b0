#include "desktop/shell/ShellActions.h"

#include "app/AppDelegate.h"
#include "desktop/instruments/importChoices.h"
#include "desktop/tuning/TranspositionCommands.h"
#include "desktop/tuning/tuningText.h"
#include "desktop/widgets/Commands.h"
#include "desktop/widgets/messages.h"
#include "platform/pathNames.h"
#include "preferences/settings.h"

#include <QAction>
#include <QActionGroup>
#include <QMenu>
#include <QMenuBar>

namespace velmora {

namespace {

constexpr qsizetype kRecentFiles = 10;
constexpr const char* kRecentKey = "recentFiles";

/// Escapes a menu text so that an ampersand is shown and does not mark a mnemonic.
QString escaped(QString text)
{
    return text.replace("&", "&&");
}

/// Returns a menu text in a list, with a digit as its mnemonic for the first nine positions.
QString numbered(std::size_t position, const QString& text)
{
    return position < 9 ? QString("&%1 %2").arg(position + 1).arg(escaped(text)) : escaped(text);
}

/// The groups of commands, as the user sees them.
QString fileGroup()
{
    return ShellActions::tr("File");
}

QString soundGroup()
{
    return ShellActions::tr("Sound");
}

QString viewGroup()
{
    return ShellActions::tr("View");
}

QString helpGroup()
{
    return ShellActions::tr("Help");
}

} // namespace

ShellActions::ShellActions(AppDelegate& application, Commands& commands)
    : newSequence(commands.add("file.new", fileGroup(), {tr("&New Piece"), {}, "new"},
                               {QKeySequence(QKeySequence::New)})),
      open(commands.add("file.open", fileGroup(),
                        {tr("&Open…"), tr("Open pieces, instruments and tunings"), "open"},
                        {QKeySequence(QKeySequence::Open)})),
      openInstrument(
          commands.add("file.openInstrument", fileGroup(),
                       {tr("&Open Instrument…"),
                        tr("Open a SoundFont, a GigaSampler bank or an organ"), "open"})),
      openTuning(commands.add("file.openTuning", fileGroup(),
                              {tr("&Open Tuning…"), tr("Open scales and other tunings"), "open"})),
      openSession(
          commands.add("file.openSession", fileGroup(),
                       {tr("Open Sess&ion…"),
                        tr("Open the instruments, the tuning and the pieces of a session")})),
      saveSession(commands.add(
          "file.saveSession", fileGroup(),
          {tr("Sa&ve Session…"), tr("Save which instruments, tuning and pieces are open")})),
      save(commands.add("file.save", fileGroup(), {tr("&Save"), tr("Save the piece"), "save"},
                        {QKeySequence(QKeySequence::Save)})),
      saveAs(commands.add("file.saveAs", fileGroup(), {tr("Save &As…"), {}},
                          {Qt::CTRL | Qt::SHIFT | Qt::Key_S})),
      exportAudio(
          commands.add("file.export", fileGroup(),
                       {tr("&Export Audio…"), tr("Write a sound file of the piece"), "export"},
                       {Qt::CTRL | Qt::Key_E})),
      exportStems(commands.add(
          "file.exportStems", fileGroup(),
          {tr("Export Voices…"), tr("Write a sound file of each voice of the piece")})),
      exportMidi(commands.add(
          "file.exportMidi", fileGroup(),
          {tr("Export &MIDI in This Tuning…"),
           tr("Write a MIDI file of the piece that other devices play in this tuning")})),
      exportScore(commands.add(
          "file.exportScore", fileGroup(),
          {tr("E&xport Score…"), tr("Write the piece down for a notation program, spelled as the "
                                    "tuning spells it")})),
      exportRoll(commands.add(
          "file.exportRoll", fileGroup(),
          {tr("Export Roll…"), tr("Write the piano roll of the piece for paper, as PDF or PNG")})),
      exportScale(commands.add("file.exportScale", fileGroup(),
                               {tr("Export &Tuning…"),
                                tr("Write what each key sounds like now as a scale and a keyboard "
                                   "mapping")})),
      sendTuning(commands.add(
          "sound.sendTuning", soundGroup(),
          {tr("&Send the Tuning…"), tr("Send the tuning to a MIDI device that is to play in it")})),
      close(commands.add("file.close", fileGroup(), {tr("&Close Piece"), {}},
                         {Qt::CTRL | Qt::Key_W})),
      preferences(commands.add("file.preferences", fileGroup(),
                               {tr("&Preferences…"), {}, "preferences-general"},
                               {Qt::CTRL | Qt::Key_Comma})),
      quit(commands.add("file.quit", fileGroup(), {tr("&Quit"), {}}, {Qt::CTRL | Qt::Key_Q})),
      silence(commands.add(
          "sound.silence", soundGroup(),
          {tr("&Silence Everything"), tr("Stop every sound and release every key"), "panic"},
          {Qt::CTRL | Qt::Key_Period})),
      stopLoading(
          commands.add("sound.stopLoading", soundGroup(),
                       {tr("Stop Loadin&g"), tr("Leave out the stops that are not loaded yet")})),
      transposeUp(commands.add("sound.transposeUp", soundGroup(), {tr("Transpose &Up"), {}},
                               {Qt::CTRL | Qt::SHIFT | Qt::Key_Up})),
      transposeDown(commands.add("sound.transposeDown", soundGroup(), {tr("Transpose &Down"), {}},
                                 {Qt::CTRL | Qt::SHIFT | Qt::Key_Down})),
      keyboard(commands.add("view.keyboard", viewGroup(), {tr("&Keyboard"), {}, "keyboard"},
                            {Qt::CTRL | Qt::Key_K})),
      instrument(
          commands.add("view.instrument", viewGroup(),
                       {tr("&Instrument"), tr("Show the program or the stops"), "instrument"},
                       {Qt::CTRL | Qt::Key_I})),
      tuning(commands.add("view.tuning", viewGroup(), {tr("&Tuning"), {}, "tuning"},
                          {Qt::CTRL | Qt::Key_T})),
      console(commands.add("view.console", viewGroup(),
                           {tr("&Console"), tr("Show the stops of the organ"), "instrument"},
                           {Qt::CTRL | Qt::SHIFT | Qt::Key_C})),
      practice(commands.add(
          "view.practice", viewGroup(),
          {tr("Practice"), tr("Practise the piece, a hand or a voice of it"), "metronome"},
          {Qt::CTRL | Qt::SHIFT | Qt::Key_E})),
      tuningStudio(commands.add(
          "view.tuningStudio", viewGroup(),
          {tr("Shape the Tuning"), tr("Show the circle of fifths, and shape the tuning"), "tuning"},
          {Qt::CTRL | Qt::SHIFT | Qt::Key_T})),
      voices(commands.add("view.voices", viewGroup(),
                          {tr("Voices"), tr("Show who plays the piece"), "instrument"},
                          {Qt::CTRL | Qt::SHIFT | Qt::Key_V})),
      playLayout(commands.add("view.play", viewGroup(),
                              {tr("&Play"), tr("Arrange the window for playing"), nullptr},
                              {Qt::ALT | Qt::Key_1})),
      editLayout(commands.add("view.edit", viewGroup(),
                              {tr("&Edit"), tr("Arrange the window for editing"), nullptr},
                              {Qt::ALT | Qt::Key_2})),
      stageLayout(
          commands.add("view.stage", viewGroup(),
                       {tr("&Stage"), tr("Fill the screen with what matters on stage"), nullptr},
                       {Qt::Key_F11})),
      resetLayout(commands.add("view.reset", viewGroup(), {tr("&Reset Layout"), {}})),
      nextPanel(commands.add("view.nextPanel", viewGroup(), {tr("Ne&xt Panel"), {}}, {Qt::Key_F6})),
      previousPanel(commands.add("view.previousPanel", viewGroup(), {tr("Pre&vious Panel"), {}},
                                 {Qt::SHIFT | Qt::Key_F6})),
      ownWindow(commands.add("view.ownWindow", viewGroup(), {tr("Piece in Its &Own Window"), {}},
                             {Qt::CTRL | Qt::SHIFT | Qt::Key_W})),
      instrumentsWindow(commands.add("view.instruments", viewGroup(),
                                     {tr("&Loaded Instruments…"), {}},
                                     {Qt::CTRL | Qt::SHIFT | Qt::Key_I})),
      metersWindow(commands.add(
          "view.meters", viewGroup(),
          {tr("&Meters"), tr("Show the delay, the load and the devices of live playing")},
          {Qt::CTRL | Qt::SHIFT | Qt::Key_M})),
      noteNames(
          commands.add("view.noteNames", viewGroup(), {tr("Note &Names on the Keyboard"), {}})),
      guide(commands.add("help.guide", helpGroup(), {tr("User &Guide"), {}, "help"}, {Qt::Key_F1})),
      commandPalette(commands.add(
          "help.commands", helpGroup(),
          {tr("&Find a Command…"), tr("Find a command by its name and perform it"), "find"},
          {Qt::CTRL | Qt::SHIFT | Qt::Key_P})),
      about(commands.add("help.about", helpGroup(), {tr("&About Velmora"), {}})),
      application_(application),
      transposition_(std::make_unique<TranspositionCommands>(application.tunings(), commands)),
      recent_(std::make_unique<QMenu>(tr("Open &Recent"))),
      instruments_(std::make_unique<QMenu>(tr("&Instrument"))),
      tunings_(std::make_unique<QMenu>(tr("&Tuning")))
{
    preferences->setMenuRole(QAction::PreferencesRole);
    quit->setMenuRole(QAction::QuitRole);
    about->setMenuRole(QAction::AboutRole);
    auto* layouts = new QActionGroup(this);
    for (QAction* action : {playLayout, editLayout, stageLayout})
        layouts->addAction(action);
    for (QAction* action : {keyboard, instrument, tuning, console, practice, tuningStudio, voices,
                            playLayout, editLayout, stageLayout, ownWindow, noteNames})
        action->setCheckable(true);
    for (QAction* action : {save, saveAs, exportAudio, exportStems, exportMidi, exportScore,
                            exportRoll, close, ownWindow})
        action->setEnabled(false); // until there is a piece

    InstrumentLoader& loader = application_.loader();
    const auto allowStopping = [this] {
        stopLoading->setEnabled(application_.loader().isLoading());
    };
    connect(stopLoading, &QAction::triggered, &loader, &InstrumentLoader::stop);
    connect(&loader, &InstrumentLoader::progressed, this, allowStopping);
    allowStopping();

    connect(recent_.get(), &QMenu::aboutToShow, this, &ShellActions::showRecent);
    connect(instruments_.get(), &QMenu::aboutToShow, this, &ShellActions::showInstruments);
    connect(tunings_.get(), &QMenu::aboutToShow, this, &ShellActions::showTunings);
    tunings_->setToolTipsVisible(true);
    showRecent(); // disables the menu if there are none
}

ShellActions::~ShellActions() = default;

void ShellActions::addFile(QMenu& file) const
{
    file.addActions({newSequence, open});
    file.addMenu(recent_.get());
    file.addSeparator();
    file.addActions(
        {save, saveAs, exportAudio, exportStems, exportMidi, exportScore, exportRoll, exportScale});
    file.addSeparator();
    file.addActions({openSession, saveSession});
    file.addSeparator();
    file.addActions({close, preferences, quit});
}

void ShellActions::addSound(QMenuBar& bar) const
{
    bar.addMenu(instruments_.get());
    bar.addMenu(tunings_.get());
}

void ShellActions::addPanels(QMenu& view) const
{
    view.addActions({keyboard, instrument, tuning, tuningStudio, practice, voices, console,
                     nextPanel, previousPanel});
    view.addSeparator();
    view.addActions({playLayout, editLayout, stageLayout, resetLayout});
    view.addSeparator();
    view.addActions({ownWindow, noteNames});
    view.addSeparator();
    view.addActions({instrumentsWindow, metersWindow});
}

void ShellActions::addHelp(QMenu& help) const
{
    help.addActions({guide, commandPalette, about});
}

QStringList ShellActions::recentFiles()
{
    return preference(kRecentKey).toStringList();
}

void ShellActions::setRecentFiles(const QStringList& files)
{
    setPreference(kRecentKey, files);
    showRecent();
    emit recentFilesChanged();
}

void ShellActions::addRecent(const QString& path)
{
    QStringList files = recentFiles();
    files.removeAll(path);
    files.prepend(path);
    setRecentFiles(files.mid(0, kRecentFiles));
}

void ShellActions::showRecent()
{
    recent_->clear();
    for (const QString& path : recentFiles()) {
        QAction* action = recent_->addAction(escaped(displayName(pathOf(path))), this,
                                             [this, path] { emit recentFileChosen(path); });
        action->setToolTip(path);
        std::error_code error;
        action->setEnabled(std::filesystem::exists(pathOf(path), error));
    }
    recent_->setToolTipsVisible(true);
    recent_->setEnabled(!recent_->isEmpty());
    recent_->addSeparator();
    recent_->addAction(tr("&Clear List"), this, [this] { setRecentFiles({}); });
}

void ShellActions::showInstruments()
{
    instruments_->clear();
    const InstrumentDocument* current = nullptr;
    std::size_t position = 0;
    for (const auto& document : application_.instruments()) {
        QAction* action =
            instruments_->addAction(numbered(position, translatedTitle(document->title())), this,
                                    [this, position] { emit instrumentChosen(position); });
        action->setCheckable(true);
        action->setChecked(application_.isCurrent(*document));
        if (application_.isCurrent(*document) && document->isFromFile())
            current = document.get();
        ++position;
    }
    if (current != nullptr) {
        instruments_->addSeparator();
        addImportChoices(*instruments_, *current, [this](const ImportOptions& options) {
            for (std::size_t i = 0; i < application_.instruments().size(); ++i)
                if (application_.isCurrent(*application_.instruments()[i]))
                    emit reopenRequested(i, options);
        });
    }
    instruments_->addSeparator();
    instruments_->addActions({openInstrument, instrument, instrumentsWindow});
    instruments_->addSeparator();
    instruments_->addActions({transposeUp, transposeDown, silence, stopLoading});
}

void ShellActions::showTunings()
{
    tunings_->clear();
    for (std::size_t position = 0; const std::string& name : application_.tunings().names()) {
        const TuningText text = tuningText(application_, name);
        QAction* action = tunings_->addAction(numbered(position++, text.title), this, [this, name] {
            application_.tunings().select(name);
        });
        action->setToolTip(text.detail);
        action->setCheckable(true);
        action->setChecked(name == application_.tunings().name());
    }
    tunings_->addSeparator();
    transposition_->addTo(*tunings_);
    tunings_->addSeparator();
    tunings_->addActions({openTuning, sendTuning});
}

} // namespace velmora
