#pragma once

#include <QStatusBar>

class QLabel;
class QToolButton;

namespace velmora {

class AppDelegate;

/// Shows the instrument, the tuning, the sound output and the MIDI inputs, and notices about
/// anything that is missing.
class StatusLine : public QStatusBar {
    Q_OBJECT

public:
    explicit StatusLine(AppDelegate& application);

    /// Shows the devices. Call it once the application has started.
    void showDevices();

    /// Adds a notice: a sentence that says what is missing, what does not work for that reason, and
    /// what to do.
    void addNotice(const QString& notice);

    /// Removes a notice whose cause is gone.
    void removeNotice(const QString& notice);

private:
    void showSound();
    void showOutput();
    void showMidiInputs();
    void updateNotices();
    void showNotices();

    AppDelegate& application_;
    QLabel *instrument_, *tuning_, *output_, *inputs_;
    QToolButton* noticesButton_;
    QStringList notices_;
    QString missingOutput_; ///< The notice about the output; empty if none is missing.
};

} // namespace velmora
