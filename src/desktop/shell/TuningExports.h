#pragma once

#include "app/TuningSender.h"

#include <QObject>
#include <QPointer>
#include <QString>

#include <filesystem>
#include <functional>

class QDialog;
class QWidget;

namespace velmora {

class AppDelegate;
class SequencePages;
class ShellActions;

/// The commands that take the current piece or the current tuning elsewhere: into a MIDI file, a
/// score, a picture or a scale, and to a MIDI device.
class TuningExports : public QObject {
    Q_OBJECT

public:
    /// Dialogs stand on `window`. The arguments must outlive this object.
    TuningExports(AppDelegate& application, ShellActions& actions, SequencePages& pages,
                  QWidget& window);

signals:
    /// A sentence for the status line.
    void message(const QString& text);

private:
    void exportMidi();
    void exportScore();
    void exportRoll();
    void exportScale();
    void showSendDialog();

    /// Writes a file with `write`, and tells the user of a failure.
    void save(const QString& path, const std::function<void(const std::filesystem::path&)>& write);

    AppDelegate& application_;
    SequencePages& pages_;
    QWidget& window_;
    TuningSender sender_;
    QPointer<QDialog> sendDialog_;
};

} // namespace velmora
