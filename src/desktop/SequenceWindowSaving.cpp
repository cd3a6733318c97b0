// How the document of a sequence window comes into a file.

#include "desktop/Commands.h"
#include "desktop/SequenceWindow.h"
#include "sequencer/SequenceFile.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>

namespace {

constexpr const char* kFolderKey = "saveFolder";

QString midiFilter()
{
    return SequenceWindow::tr("MIDI File (*.mid *.midi *.smf *.kar)");
}

QString iMelodyFilter()
{
    return SequenceWindow::tr("iMelody (*.imy)");
}

} // namespace

bool SequenceWindow::askToSave()
{
    if (!document_.isModified())
        return true;
    QMessageBox box(QMessageBox::Warning, tr("Velmora"),
                    tr("Save the changes to %1?").arg(displayName()),
                    QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, this);
    box.setInformativeText(tr("They are lost if you do not."));
    box.setDefaultButton(QMessageBox::Save);
    switch (box.exec()) {
    case QMessageBox::Save:
        return save();
    case QMessageBox::Discard:
        return true;
    default:
        return false;
    }
}

bool SequenceWindow::save()
{
    if (document_.path().empty())
        return saveAs();
    return write(QString::fromStdString(document_.path().string()),
                 sequenceTypeOf(document_.path()), SequenceDocument::SaveOperation::Save);
}

bool SequenceWindow::saveAs()
{
    QSettings settings("velmora", "velmora");
    QFileDialog dialog(this, tr("Save As"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setNameFilters({midiFilter(), iMelodyFilter()});
    dialog.setDefaultSuffix("mid");
    connect(&dialog, &QFileDialog::filterSelected, &dialog, [&dialog](const QString& filter) {
        dialog.setDefaultSuffix(filter == iMelodyFilter() ? "imy" : "mid");
    });
    if (document_.path().empty()) {
        dialog.setDirectory(settings.value(kFolderKey).toString());
        dialog.selectFile(name_ + ".mid");
    } else {
        const QFileInfo file(QString::fromStdString(document_.path().string()));
        dialog.setDirectory(file.absolutePath());
        dialog.selectFile(file.fileName());
    }
    if (dialog.exec() != QDialog::Accepted)
        return false;

    const QString path = dialog.selectedFiles().front();
    settings.setValue(kFolderKey, QFileInfo(path).absolutePath());
    std::string type = sequenceTypeOf(path.toStdString());
    if (type.empty())
        type = dialog.selectedNameFilter() == iMelodyFilter() ? kIMelodyType : kMidiFileType;
    return write(path, type, SequenceDocument::SaveOperation::SaveAs);
}

bool SequenceWindow::write(const QString& path, const std::string& type,
                           SequenceDocument::SaveOperation operation)
{
    const bool isWritten = document_.saveToURL(path.toStdString(), type, operation);
    showTitle();
    if (isWritten) {
        commands_.addRecent(path);
        return true;
    }
    QMessageBox box(QMessageBox::Warning, tr("Velmora"),
                    tr("%1 was not saved.").arg(QFileInfo(path).fileName()), QMessageBox::Cancel,
                    this);
    box.setInformativeText(QString::fromStdString(document_.errorString()));
    const QPushButton* as = box.addButton(tr("Save As…"), QMessageBox::AcceptRole);
    box.exec();
    return box.clickedButton() == as && saveAs();
}
