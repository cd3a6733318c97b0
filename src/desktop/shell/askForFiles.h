#pragma once

#include <QStringList>

#include <functional>

class QWidget;

namespace velmora {

// Dialogs that ask what to open. Each begins in the folder that was chosen last.

/// Asks for files of every kind. Returns an empty list if the user cancels.
QStringList askForFiles(QWidget* parent);

/// Asks for files of instruments, at first where packages install them. Returns an empty list if
/// the user cancels.
QStringList askForInstruments(QWidget* parent);

/// Asks for tuning files, and tells which file is highlighted meanwhile. Returns an empty list if
/// the user cancels.
QStringList askForTunings(QWidget* parent, const std::function<void(const QString&)>& highlighted);

/// Asks for a session file. Returns an empty path if the user cancels.
QString askForSession(QWidget* parent);

/// Asks where to save a session. Returns an empty path if the user cancels.
QString askWhereToSaveSession(QWidget& parent);

/// Asks where to save a tuning, and proposes its name. Returns an empty path if the user cancels.
QString askWhereToSaveTuning(QWidget& parent, const QString& name);

/// Asks whether to open the last session again, although the program ended while doing so.
bool askToOpenAgain(QWidget* parent);

} // namespace velmora
