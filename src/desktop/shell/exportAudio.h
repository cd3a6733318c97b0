#pragma once

#include <functional>

class QString;
class QWidget;

namespace velmora {

class AppDelegate;
class SequenceDocument;

/// Asks where to save a sound file and renders a sequence as it would sound now. A dialog on
/// `page` shows the progress, and `tell` is called with a sentence when the file is complete. The
/// rest of the program can be used meanwhile.
/// Proposes a file beside that of the piece, or called `name` if it has none.
void exportAudio(QWidget& page, const SequenceDocument& document, const QString& name,
                 AppDelegate& application, const std::function<void(const QString&)>& tell);

/// Asks for a folder and renders each voice of a sequence to a sound file of its own there, in the
/// same way.
void exportStems(QWidget& page, const SequenceDocument& document, const QString& name,
                 AppDelegate& application, const std::function<void(const QString&)>& tell);

/// Returns whether an export from this page is running.
bool isExportingAudio(const QWidget& page);

} // namespace velmora
