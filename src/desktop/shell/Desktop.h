#pragma once

#include "app/AppDelegate.h"
#include "desktop/instruments/InstrumentPanel.h"
#include "desktop/instruments/InstrumentsWindow.h"
#include "desktop/instruments/ProgressWindow.h"
#include "desktop/shell/Commands.h"
#include "desktop/shell/FileDrop.h"
#include "desktop/shell/GuideWindow.h"
#include "desktop/shell/KeyboardWindow.h"
#include "desktop/shell/PreferencesWindow.h"
#include "desktop/shell/SequenceWindows.h"

#include <QObject>
#include <QStringList>

#include <memory>

namespace velmora {

/// The program on a desktop: the application, its windows, and the files that are opened.
class Desktop : public QObject {
    Q_OBJECT

public:
    /// Makes the windows and shows the keyboard.
    Desktop();
    ~Desktop() override;

    /// Starts sound and MIDI. What the machine does not have is noted in the status line.
    void launch();

    /// Opens files by their kinds, one after the other. A message says what is wrong with one that
    /// cannot be opened. No files bring the keyboard to the front.
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
    void openTuning(const QString& path, const std::string& type);
    void openInstrument(const QString& path, const std::string& type);
    void openSequence(const QString& path);
    void selectInstrument(std::size_t position);
    void askForFiles();
    void updateAllViews();
    void showBank();
    void complain(const QString& sentence);

    AppDelegate application_;
    Commands commands_;
    FileDrop fileDrop_;
    KeyboardWindow keyboardWindow_;
    InstrumentPanel instrumentPanel_;
    InstrumentsWindow instrumentsWindow_;
    PreferencesWindow preferencesWindow_;
    ProgressWindow progressWindow_;
    GuideWindow guideWindow_;
    SequenceWindows sequenceWindows_;
    QString bankNotice_;  ///< What stands in the status line about the General MIDI bank.
    QStringList waiting_; ///< Files that came while others were being opened.
    bool isOpening_ = false;
};

} // namespace velmora
