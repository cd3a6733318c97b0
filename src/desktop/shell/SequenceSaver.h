#pragma once

#include "sequencer/SequenceDocument.h"

#include <QObject>
#include <QString>

class QMainWindow;

namespace velmora {

class Commands;

/// Saves the document of a sequence window, and asks the user before anything is lost.
class SequenceSaver : public QObject {
    Q_OBJECT

public:
    /// `window` is the parent of the dialogs. `name` is shown until the document has a file. The
    /// window, the document and the commands must outlive the saver.
    SequenceSaver(QMainWindow& window, SequenceDocument& document, Commands& commands,
                  const QString& name);

    /// The name of the document's file, or the given name if it has none.
    QString displayName() const;

    /// Returns whether there are unsaved changes or an export is running.
    bool isBusyOrModified() const;

    /// Asks the user about unsaved changes and a running export. Returns false if the window must
    /// stay open.
    bool askToClose();

    /// Writes the document to its file, or to a file that the user chooses. Returns false if the
    /// user cancels, or if it cannot be written; the user has then been told why.
    bool save();
    bool saveAs();

signals:
    /// The document was written; its name may have changed.
    void saved();

private:
    bool write(const QString& path, SequenceDocument::SaveOperation operation);
    bool askToCancelExport();
    bool askToSave();
    bool askToLoseVoices();

    QMainWindow& window_;
    SequenceDocument& document_;
    Commands& commands_;
    QString name_;
};

} // namespace velmora
