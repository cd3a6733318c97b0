#pragma once

#include <QStatusBar>

class QToolButton;

namespace velmora {

class AppDelegate;
class StatusItem;

/// Shows the instrument, the tuning, how MIDI devices are read, the sound output and the MIDI
/// inputs, which can all be clicked, and notices about anything that is missing.
class StatusLine : public QStatusBar {
    Q_OBJECT

public:
    explicit StatusLine(AppDelegate& application);

    /// Shows the devices. Call it once the application has started.
    void showDevices();

    /// Adds a notice: a sentence that says what is missing, what does not work for that reason, and
    /// what to do. Does nothing if it is empty.
    void addNotice(const QString& notice);

    /// Removes a notice whose cause is gone.
    void removeNotice(const QString& notice);

signals:
    // The user wants to change what an item shows.
    void instrumentClicked();
    void tuningClicked();
    void soundClicked();
    void midiClicked();

private:
    StatusItem* addItem(const QString& subject, void (StatusLine::*clicked)());
    void showSound();
    void showLoading(const QString& title, int percent);
    void showReading();
    void showOutput();
    void showMidiInputs();
    void updateNotices();
    void showNotices();

    AppDelegate& application_;
    StatusItem *instrument_, *tuning_, *reading_, *output_, *inputs_, *loading_;
    QToolButton *noticesButton_, *stopLoadingButton_;
    QStringList notices_;
    QString outOfTune_;     ///< The notice about the tuning; empty if it sounds as it is.
    QString missingOutput_; ///< The notice about the output; empty if none is missing.
};

} // namespace velmora
