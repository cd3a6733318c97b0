#include "desktop/shell/Commands.h"

#include "app/AppDelegate.h"
#include "desktop/widgets/icons.h"
#include "preferences/settings.h"

#include <QAction>
#include <QFileInfo>
#include <QMenu>
#include <QMenuBar>

namespace velmora {

namespace {

constexpr qsizetype kRecentFiles = 10;
constexpr const char* kRecentKey = "recentFiles";

QStringList recentFiles()
{
    return preference(kRecentKey).toStringList();
}

void setRecentFiles(const QStringList& files)
{
    setPreference(kRecentKey, files);
}

/// Escapes a menu text so that an ampersand is shown and does not mark a mnemonic.
QString escaped(QString text)
{
    return text.replace("&", "&&");
}

QString escaped(const std::string& text)
{
    return escaped(QString::fromStdString(text));
}

} // namespace

Commands::Commands(AppDelegate& application)
    : newSequence(new QAction(icon("new"), tr("&New Sequence"), this)),
      open(new QAction(icon("open"), tr("&Open…"), this)),
      preferences(new QAction(icon("preferences-general"), tr("&Preferences…"), this)),
      quit(new QAction(tr("&Quit"), this)),
      silence(new QAction(icon("panic"), tr("&Silence Everything"), this)),
      transposeUp(new QAction(tr("Transpose &Up"), this)),
      transposeDown(new QAction(tr("Transpose &Down"), this)),
      keyboardWindow(new QAction(icon("keyboard"), tr("&Keyboard"), this)),
      instrumentPanel(new QAction(icon("instrument"), tr("Instrument &Panel"), this)),
      instrumentsWindow(new QAction(tr("&Instruments…"), this)),
      metersWindow(new QAction(tr("&Meters"), this)),
      noteNames(new QAction(tr("Note &Names on the Keyboard"), this)), application_(application),
      recent_(std::make_unique<QMenu>(tr("Open &Recent"))),
      instruments_(std::make_unique<QMenu>(tr("&Instrument"))),
      tunings_(std::make_unique<QMenu>(tr("&Tuning"))), help_(std::make_unique<QMenu>(tr("&Help")))
{
    newSequence->setShortcut(QKeySequence::New);
    open->setShortcut(QKeySequence::Open);
    open->setToolTip(tr("Open sequences, instruments and tunings"));
    preferences->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Comma));
    preferences->setMenuRole(QAction::PreferencesRole);
    quit->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));
    quit->setMenuRole(QAction::QuitRole);
    silence->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Period));
    silence->setShortcutContext(Qt::ApplicationShortcut);
    silence->setToolTip(tr("Stop every sound and release every key (Ctrl+.)"));
    transposeUp->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Up));
    transposeDown->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Down));
    for (QAction* action : {transposeUp, transposeDown})
        action->setShortcutContext(Qt::ApplicationShortcut);
    keyboardWindow->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_K));
    instrumentPanel->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_I));
    instrumentPanel->setToolTip(tr("Show the program, the tuning and the stops (Ctrl+I)"));
    instrumentsWindow->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_I));
    metersWindow->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_M));
    metersWindow->setToolTip(tr("Show the delay, the load and the devices of live playing"));
    noteNames->setCheckable(true);

    help_->addAction(icon("help"), tr("User &Guide"), QKeySequence(Qt::Key_F1), this,
                     &Commands::guideRequested);
    help_->addAction(tr("&About Velmora"), this, &Commands::aboutRequested)
        ->setMenuRole(QAction::AboutRole);

    connect(recent_.get(), &QMenu::aboutToShow, this, &Commands::showRecent);
    connect(instruments_.get(), &QMenu::aboutToShow, this, &Commands::showInstruments);
    connect(tunings_.get(), &QMenu::aboutToShow, this, &Commands::showTunings);
    showRecent(); // disables the menu if there are none
}

Commands::~Commands() = default;

void Commands::addOpening(QMenu& file) const
{
    file.addAction(newSequence);
    file.addAction(open);
    file.addMenu(recent_.get());
}

void Commands::addClosing(QMenu& file) const
{
    file.addSeparator();
    file.addAction(preferences);
    file.addSeparator();
    file.addAction(quit);
}

void Commands::addSound(QMenuBar& bar) const
{
    bar.addMenu(instruments_.get());
    bar.addMenu(tunings_.get());
}

void Commands::addWindows(QMenu& view) const
{
    view.addActions({keyboardWindow, instrumentPanel, instrumentsWindow, metersWindow});
}

void Commands::addHelp(QMenuBar& bar) const
{
    bar.addMenu(help_.get());
}

void Commands::addRecent(const QString& path)
{
    QStringList files = recentFiles();
    files.removeAll(path);
    files.prepend(path);
    setRecentFiles(files.mid(0, kRecentFiles));
    showRecent();
}

void Commands::showRecent()
{
    recent_->clear();
    for (const QString& path : recentFiles()) {
        QAction* action = recent_->addAction(escaped(QFileInfo(path).fileName()), this,
                                             [this, path] { emit recentFileChosen(path); });
        action->setToolTip(path);
        action->setEnabled(QFileInfo::exists(path));
    }
    recent_->setToolTipsVisible(true);
    recent_->setEnabled(!recent_->isEmpty());
    recent_->addSeparator();
    recent_->addAction(tr("&Clear List"), this, [this] {
        setRecentFiles({});
        showRecent();
    });
}

void Commands::showInstruments()
{
    instruments_->clear();
    std::size_t position = 0;
    for (const auto& document : application_.instruments()) {
        QAction* action = instruments_->addAction(
            escaped(document->name()), this, [this, position] { emit instrumentChosen(position); });
        action->setCheckable(true);
        action->setChecked(application_.isCurrent(*document));
        ++position;
    }
    instruments_->addSeparator();
    instruments_->addActions({instrumentPanel, instrumentsWindow});
    instruments_->addSeparator();
    instruments_->addActions({transposeUp, transposeDown, silence});
}

void Commands::showTunings()
{
    tunings_->clear();
    for (const std::string& name : application_.tuningNames()) {
        QAction* action = tunings_->addAction(escaped(name), this,
                                              [this, name] { application_.selectTuning(name); });
        action->setCheckable(true);
        action->setChecked(name == application_.tuningName());
    }
}

} // namespace velmora
