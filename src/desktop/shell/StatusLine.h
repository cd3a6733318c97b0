#pragma once

#include <QStatusBar>
#include <QTimer>

class QLabel;
class QToolButton;

namespace velmora {

class AppDelegate;

/// Tells how things stand: the instrument, the tuning, the sound output and the MIDI inputs, and
/// what the machine does not have.
class StatusLine : public QStatusBar {
    Q_OBJECT

public:
    explicit StatusLine(AppDelegate& application);

    /// Shows which devices there are, once the application has launched.
    void showDevices();

    /// Adds to what is wanting: a sentence that says what cannot be done for it.
    void addNotice(const QString& notice);

    /// It can be done again.
    void removeNotice(const QString& notice);

private:
    void showSound();
    void showOutput();
    void updateNotices();
    void showNotices();

    AppDelegate& application_;
    QLabel *instrument_, *tuning_, *output_, *inputs_;
    QToolButton* noticesButton_;
    QStringList notices_;
    QTimer untilPeriodIsKnown_;
};

} // namespace velmora
