#pragma once

class QMainWindow;

namespace velmora {

class AppDelegate;
class SequenceDocument;

/// Asks where to save a sound file and renders a sequence as it would sound now. A dialog on
/// `window` shows the progress, and its status bar says when the file is complete. The rest of the
/// program can be used meanwhile.
void exportAudio(QMainWindow& window, const SequenceDocument& document, AppDelegate& application);

/// Returns whether an export from this window is running.
bool isExportingAudio(const QMainWindow& window);

} // namespace velmora
