#pragma once

class AppDelegate;
class QWidget;
class SequenceDocument;

/// Asks for a sound file and renders a sequence into it as it would sound now, with progress over
/// its window. Everything else goes on meanwhile.
void exportAudio(QWidget& window, const SequenceDocument& document, AppDelegate& application);
