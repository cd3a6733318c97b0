// How the document of a sequence window comes into a file.

#include "desktop/shell/Commands.h"
#include "desktop/shell/SequenceWindow.h"
#include "desktop/shell/askWhereToSave.h"
#include "desktop/shell/exportAudio.h"
#include "sequencer/SequenceFile.h"

#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>

namespace velmora {

bool SequenceWindow::isBusyOrModified() const
{
    return document_.isModified() || isExportingAudio(*this);
}

bool SequenceWindow::askToClose()
{
    return (!isExportingAudio(*this) || askToGiveUpExport()) &&
           (!document_.isModified() || askToSave());
}

bool SequenceWindow::askToGiveUpExport()
{
    QMessageBox box(QMessageBox::Warning, tr("Velmora"),
                    tr("%1 is being exported. Give that up?").arg(displayName()),
                    QMessageBox::Cancel, this);
    box.setInformativeText(tr("There will be no sound file if you do."));
    const QPushButton* giveUp = box.addButton(tr("Give Up"), QMessageBox::DestructiveRole);
    box.exec();
    return box.clickedButton() == giveUp;
}

bool SequenceWindow::askToSave()
{
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
    const QString saved = QString::fromStdString(document_.path().string());
    const QString path = askWhereToSave(
        *this, {.title = tr("Save As"),
                .kinds = {{tr("MIDI File"), {"mid", "midi", "smf", "kar"}}, {"iMelody", {"imy"}}},
                .proposal = saved.isEmpty() ? name_ + ".mid" : saved,
                .folderKey = "saveFolder"});
    if (path.isEmpty())
        return false;
    const std::string type = sequenceTypeOf(path.toStdString());
    return (type != kIMelodyType || askToLoseVoices()) &&
           write(path, type, SequenceDocument::SaveOperation::SaveAs);
}

bool SequenceWindow::askToLoseVoices()
{
    QMessageBox box(QMessageBox::Question, tr("Velmora"),
                    tr("An iMelody file holds one voice and no dynamics. Save it all the same?"),
                    QMessageBox::Save | QMessageBox::Cancel, this);
    box.setInformativeText(
        tr("Velmora cannot open it again. A MIDI file keeps everything that you see."));
    box.setDefaultButton(QMessageBox::Cancel);
    return box.exec() == QMessageBox::Save;
}

bool SequenceWindow::write(const QString& path, const std::string& type,
                           SequenceDocument::SaveOperation operation)
{
    const bool isWritten = document_.saveToURL(path.toStdString(), type, operation);
    showTitle();
    if (isWritten) {
        if (type == kMidiFileType)
            commands_.addRecent(path); // the other kind cannot be opened
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

} // namespace velmora
