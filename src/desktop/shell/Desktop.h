#pragma once

#include "app/AppDelegate.h"
#include "desktop/instruments/InstrumentPanel.h"
#include "desktop/instruments/InstrumentsWindow.h"
#include "desktop/instruments/ProgressWindow.h"
#include "desktop/shell/Commands.h"
#include "desktop/shell/FileDrop.h"
#include "desktop/shell/GuideWindow.h"
#include "desktop/shell/KeyboardWindow.h"
#include "desktop/shell/MetersWindow.h"
#include "desktop/shell/PreferencesWindow.h"
#include "desktop/shell/SequenceWindows.h"

#include <QObject>
#include <QStringList>

#include <memory>

namespace velmora {

/// The desktop program: the application with its windows. It opens files according to their type.
class Desktop : public QObject {
    Q_OBJECT

public:
    /// Creates the windows and shows the keyboard.
    Desktop();
    ~Desktop() override;

    /// Starts sound and MIDI, and offers to recover unsaved sequences. The status line shows which
    /// devices are missing.
    void launch(const OutputSettings& output = preferredOutput());

    /// Opens files one after the other; a message box explains each failure. Brings the keyboard
    /// to the front if there are no files.
    void open(const QStringList& paths);

    AppDelegate& application() { return application_; }
    KeyboardWindow& keyboardWindow() { return keyboardWindow_; }
    InstrumentPanel& instrumentPanel() { return instrumentPanel_; }
    InstrumentsWindow& instrumentsWindow() { return instrumentsWindow_; }
    PreferencesWindow& preferencesWindow() { return preferencesWindow_; }
    SequenceWindows& sequenceWindows() { return sequenceWindows_; }

private:
    void connectCommands();
    void connectProgress();
    void connectSequences();
    void openWaiting();
    void openFile(const QString& path);
    void openTuning(const QString& path, TuningFormat format);
    void openInstrument(const QString& path, InstrumentFormat format);
    void openSequence(const QString& path);
    void selectInstrument(std::size_t position);
    void askForFiles();
    void transpose(int semitones);
    void perform(LearnedAction::Kind action);
    void updateAllViews();
    void showBank();
    void showError(const QString& message);

    AppDelegate application_;
    Commands commands_;
    FileDrop fileDrop_;
    KeyboardWindow keyboardWindow_;
    InstrumentPanel instrumentPanel_;
    InstrumentsWindow instrumentsWindow_;
    PreferencesWindow preferencesWindow_{application_};
    ProgressWindow progressWindow_;
    GuideWindow guideWindow_;
    MetersWindow metersWindow_;
    SequenceWindows sequenceWindows_;
    QString bankNotice_;  ///< The current notice about the General MIDI bank; may be empty.
    QStringList waiting_; ///< Files to open after the current one.
    bool isOpening_ = false;
};

} // namespace velmora
