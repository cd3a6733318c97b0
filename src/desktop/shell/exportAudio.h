#pragma once

class QMainWindow;

namespace velmora {

class AppDelegate;
class SequenceDocument;

/// Asks for a sound file and renders a sequence into it as it would sound now, with progress over
/// its window, whose status bar says when it is done. Everything else goes on meanwhile.
void exportAudio(QMainWindow& window, const SequenceDocument& document, AppDelegate& application);

/// Whether one of its sequence goes on.
bool isExportingAudio(const QMainWindow& window);

} // namespace velmora
