#pragma once

#include <QMainWindow>

#include <array>
#include <string>

class QDockWidget;
class QStackedWidget;
class QTabWidget;

namespace velmora {

class AppDelegate;
class Commands;
class ConsoleActions;
class ConsolePanel;
class FallingNotes;
class InstrumentPanel;
class KeyboardView;
class PracticePanel;
class PracticeResults;
class SequenceActions;
class SequenceDocument;
class ShellActions;
class StartPage;
class StatusLine;
class TransportBar;
class TuningPanel;
class TuningStudio;
class VoicesPanel;

/// The main window: the open pieces as tabs, around them the panels, which can be moved, floated
/// and hidden, and the transport, the menus and the status line. It has three layouts, each of
/// which remembers how the user has arranged it. Closing the window quits the program.
class Workspace : public QMainWindow {
    Q_OBJECT

public:
    enum class Layout { Play, Edit, Stage };

    /// The arguments must outlive the window.
    Workspace(AppDelegate& application, Commands& commands, ShellActions& shell,
              SequenceActions& actions, ConsoleActions& console);

    KeyboardView& keyboard() { return *keyboard_; }
    InstrumentPanel& instrumentPanel() { return *instrument_; }
    TuningPanel& tuningPanel() { return *tuning_; }
    TuningStudio& tuningStudio() { return *studio_; }
    ConsolePanel& consolePanel() { return *console_; }
    StartPage& startPage() { return *startPage_; }
    StatusLine& status() { return *status_; }
    QTabWidget& tabs() { return *tabs_; }

    Layout layout() const { return layout_; }

    /// Arranges the window as the user has left this layout.
    void setLayout(Layout layout);

    /// The layout and how the window is arranged, for `restoreArrangement`.
    std::string arrangement() const;

    /// Arranges the window again. Ignores bytes that are not of this version.
    void restoreArrangement(const std::string& bytes);

    /// Shows a document in the transport bar; null for none.
    void setDocument(SequenceDocument* document);

    /// Shows a panel, and gives it the keyboard focus.
    void showInstrument() { showPanel(*instrumentDock_); }
    void showTuning() { showPanel(*tuningDock_); }

protected:
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    QDockWidget* addPanel(const char* name, const QString& title, QWidget* panel, QAction& toggle);
    void makeMenus(const SequenceActions& actions, ConsoleActions& console);
    void makeTransport();
    void connectCommands();
    void saveLayout() const;
    void restoreLayout();

    /// Arranges the panels as they are at first.
    void arrange();

    /// Returns whether panels on both sides would leave little room for the piece.
    bool isNarrow() const;
    void showStage(bool isStage);

    /// Makes the type as large as the screen has room for, up to that of the stage.
    void showCentre();
    void showConsole();
    void showPanel(QDockWidget& dock);
    void movePanelFocus(int direction);

    AppDelegate& application_;
    ShellActions& shell_;
    Layout layout_ = Layout::Play;
    KeyboardView* keyboard_;
    InstrumentPanel* instrument_;
    TuningPanel* tuning_;
    TuningStudio* studio_;
    ConsolePanel* console_;
    VoicesPanel* voices_;
    PracticePanel* practice_;
    PracticeResults* practiceResults_;
    FallingNotes* fallingNotes_;
    SequenceDocument* document_ = nullptr;
    StatusLine* status_;
    TransportBar* transport_;
    StartPage* startPage_;
    QTabWidget* tabs_;
    QStackedWidget* centre_; ///< The start page, the tabs, or what is shown on stage.
    QDockWidget *keyboardDock_, *instrumentDock_, *tuningDock_, *studioDock_, *consoleDock_,
        *practiceDock_, *voicesDock_;
    bool wasShown_ = false;
    bool isConsoleNew_ = false; ///< The panels were arranged, and the console was not shown since.
};

} // namespace velmora
