#pragma once

#include "sequencer/SequenceDocument.h"

#include <QObject>
#include <QString>

class QWidget;

namespace velmora {

class ShellActions;

/// Saves the document of a page, and asks the user before anything is lost.
class SequenceSaver : public QObject {
    Q_OBJECT

public:
    /// `page` is the parent of the dialogs. `name` is shown until the document has a file. The
    /// page, the document and the actions must outlive the saver.
    SequenceSaver(QWidget& page, SequenceDocument& document, ShellActions& actions,
                  const QString& name);

    /// The name of the document's file, or the given name if it has none.
    QString displayName() const;

    /// Returns whether there are unsaved changes or an export is running.
    bool isBusyOrModified() const;

    /// Asks the user about unsaved changes and a running export. Returns false if the page must
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

    QWidget& page_;
    SequenceDocument& document_;
    ShellActions& actions_;
    QString name_;
};

} // namespace velmora
