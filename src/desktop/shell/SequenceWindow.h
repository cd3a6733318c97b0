#pragma once

#include "sequencer/RecoveryKeeper.h"
#include "sequencer/SequenceClock.h"
#include "sequencer/SequenceDocument.h"
#include "sequencer/SequenceEditor.h"

#include <QMainWindow>

namespace velmora {

class AppDelegate;
class Commands;
class SequenceActions;
class SequenceScrollView;
class TuningStrip;

/// The window of one sequence document, which it owns.
class SequenceWindow : public QMainWindow {
    Q_OBJECT

public:
    /// A new sequence under a name that stands in the title until it is saved. `recovery` is what
    /// the document is kept in against a crash.
    SequenceWindow(AppDelegate& application, Commands& commands, const QString& name,
                   RecoveryFile recovery = RecoveryFile());

    /// Where the user was not asked, what is not saved is left to be recovered.
    ~SequenceWindow() override;

    SequenceDocument& document() { return document_; }

    /// Shows the document that has just been read or recovered, from its beginning.
    void showDocument();

    /// Draws the roll again soon.
    void redraw();

    /// Fits the roll to the preferences.
    void updateDocumentSizes();

    /// Takes a key that was pressed or released while the keyboard was in front.
    void handleKey(const QKeyEvent& event);

    /// There are unsaved changes, or an export that goes on.
    bool isBusyOrModified() const;

    /// Asks what is to become of them. False when the window is to stay.
    bool askToClose();

    /// Closes without asking.
    void closeAsIs();

    /// Writes the document to its file, or to one that the user names. False when it was not
    /// written, as the user has been told.
    bool save();
    bool saveAs();

signals:
    /// It has come to the front, or is no longer to be seen.
    void becameMain();
    void resignedMain();

    /// It closes for good: the document is about to end.
    void closing();

    /// The preferences scale the roll anew: everything that shows keys is to fit itself to them.
    void zoomed();

protected:
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void makeView();
    void makeMenus();
    void makeViewMenu();
    void fitToScreen();
    void showTitle();
    void scrollTo(double step);
    bool write(const QString& path, const std::string& type,
               SequenceDocument::SaveOperation operation);
    bool askToGiveUpExport();
    bool askToSave();
    bool askToLoseVoices();
    QString displayName() const;

    AppDelegate& application_;
    Commands& commands_;
    QString name_;
    SequenceDocument document_;
    SequenceEditor editor_;
    SequenceClock clock_;
    RecoveryKeeper keeper_;
    std::unique_ptr<SequenceActions> actions_;
    SequenceScrollView* scrollView_;
    TuningStrip* tuningStrip_;
    bool isScrolledAway_ = false; ///< By the user, from a position that runs.
    bool isPlaced_ = false;       ///< It has been shown before.
    bool isSettled_ = false;      ///< There is nothing more to ask before it closes.
};

} // namespace velmora
