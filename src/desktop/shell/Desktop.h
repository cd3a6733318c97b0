#pragma once

#include "app/AppDelegate.h"
#include "app/ExampleChord.h"
#include "desktop/console/ConsoleActions.h"
#include "desktop/instruments/InstrumentsWindow.h"
#include "desktop/instruments/ProgressWindow.h"
#include "desktop/keyboard/ComputerKeyboard.h"
#include "desktop/roll/SequenceActions.h"
#include "desktop/shell/CommandPalette.h"
#include "desktop/shell/DialogCommands.h"
#include "desktop/shell/DialogFitter.h"
#include "desktop/shell/FileDrop.h"
#include "desktop/shell/GuideWindow.h"
#include "desktop/shell/InstrumentOpener.h"
#include "desktop/shell/KeyRouter.h"
#include "desktop/shell/MetersWindow.h"
#include "desktop/shell/PreferencesWindow.h"
#include "desktop/shell/SequencePages.h"
#include "desktop/shell/SessionKeeper.h"
#include "desktop/shell/ShellActions.h"
#include "desktop/shell/TuningExports.h"
#include "desktop/shell/TuningFiles.h"
#include "desktop/shell/Workspace.h"
#include "desktop/widgets/Commands.h"

#include <QObject>
#include <QStringList>

#include <memory>

namespace velmora {

/// The desktop program: the application with its windows. It opens files according to their type.
class Desktop : public QObject {
    Q_OBJECT

public:
    /// Creates the windows and shows the workspace.
    Desktop();
    ~Desktop() override;

    /// Starts sound and MIDI, and offers to recover unsaved sequences. The status line shows which
    /// devices are missing.
    void launch(const OutputSettings& output = preferredOutput());

    /// Opens again what was open when the program ended last time, if the user wants that, and
    /// remembers from now on what is open.
    void openLastSession();

    /// Opens files one after the other; a message box explains each failure. Brings the
    /// workspace to the front if there are no files.
    void open(const QStringList& paths);

    AppDelegate& application() { return application_; }
    Commands& commands() { return commands_; }
    ShellActions& shell() { return shell_; }
    Workspace& workspace() { return workspace_; }
    InstrumentPanel& instrumentPanel() { return workspace_.instrumentPanel(); }
    InstrumentsWindow& instrumentsWindow() { return instrumentsWindow_; }
    PreferencesWindow& preferencesWindow() { return preferencesWindow_; }
    SequencePages& pages() { return pages_; }

private:
    void connectCommands();
    void connectWindows();
    void connectTunings();
    void connectProgress();
    void connectPieces();
    void connectStartPage();
    void showPiece();
    void openWaiting();
    void openFile(const QString& path);
    void openInstrument(const QString& path, InstrumentFormat format);
    void rereadInstrument(std::size_t position, const ImportOptions& options);
    template <class Work> void readAgain(Work work);

    /// Remembers a file that was opened, or shows the error if there is one.
    void finishOpening(const QString& path, const std::string& error);

    void openSession(const QString& path);
    void saveSession();
    void selectInstrument(std::size_t position);
    void openChosen(const QStringList& paths);
    void transpose(int semitones);
    void perform(LearnedAction::Kind action);
    void updateAllViews();
    void showBank();
    void showError(const QString& message);

    AppDelegate application_;
    Commands commands_;
    ShellActions shell_{application_, commands_};
    SequenceActions sequenceActions_{commands_};
    ConsoleActions consoleActions_{application_, commands_};
    FileDrop fileDrop_;
    Workspace workspace_{application_, commands_, shell_, sequenceActions_, consoleActions_};
    CommandPalette palette_{commands_, &workspace_};
    InstrumentsWindow instrumentsWindow_;
    PreferencesWindow preferencesWindow_{application_, commands_};
    ProgressWindow progressWindow_;
    InstrumentOpener opener_{application_, progressWindow_};
    TuningFiles tuningFiles_{application_};
    GuideWindow guideWindow_;
    MetersWindow metersWindow_;
    SequencePages pages_{application_, shell_, sequenceActions_, workspace_.tabs(),
                         workspace_.keyboard()};
    TuningExports tuningExports_{application_, shell_, pages_, workspace_};
    ComputerKeyboard computerKeyboard_{application_};
    KeyRouter router_{workspace_, pages_, computerKeyboard_};
    DialogCommands dialogCommands_{*shell_.silence};
    DialogFitter dialogFitter_;
    SessionKeeper session_{application_, workspace_, pages_};
    ExampleChord exampleChord_{application_};
    QString bankNotice_;  ///< The current notice about the General MIDI bank; may be empty.
    QStringList waiting_; ///< Files to open after the current one.
    bool isOpening_ = false;
};

} // namespace velmora
