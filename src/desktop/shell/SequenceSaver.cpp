#include "desktop/shell/SequenceSaver.h"

#include "desktop/shell/ShellActions.h"
#include "desktop/shell/askWhereToSave.h"
#include "desktop/shell/exportAudio.h"
#include "desktop/widgets/messages.h"
#include "platform/pathNames.h"
#include "sequencer/SequenceFile.h"

#include <QMessageBox>
#include <QPushButton>

namespace velmora {

SequenceSaver::SequenceSaver(QWidget& page, SequenceDocument& document, ShellActions& actions,
                             const QString& name)
    : page_(page), document_(document), actions_(actions), name_(name)
{
}

QString SequenceSaver::displayName() const
{
    return document_.path().empty() ? name_ : velmora::displayName(document_.path());
}

bool SequenceSaver::isBusyOrModified() const
{
    return document_.isModified() || isExportingAudio(page_);
}

bool SequenceSaver::askToClose()
{
    return (!isExportingAudio(page_) || askToCancelExport()) &&
           (!document_.isModified() || askToSave());
}

bool SequenceSaver::askToCancelExport()
{
    QMessageBox box(QMessageBox::Warning, tr("Velmora"),
                    tr("%1 is still being exported. Stop the export?").arg(displayName()),
                    QMessageBox::Cancel, &page_);
    box.setInformativeText(tr("If you stop it, no sound file is written."));
    const QPushButton* stop = box.addButton(tr("Stop Export"), QMessageBox::DestructiveRole);
    box.exec();
    return box.clickedButton() == stop;
}

bool SequenceSaver::askToSave()
{
    QMessageBox box(QMessageBox::Warning, tr("Velmora"),
                    tr("Save the changes to %1?").arg(displayName()),
                    QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, &page_);
    box.setInformativeText(tr("If you do not save them, they are lost."));
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

bool SequenceSaver::save()
{
    if (document_.path().empty())
        return saveAs();
    return write(textOf(document_.path()), SequenceDocument::SaveOperation::Save);
}

bool SequenceSaver::saveAs()
{
    const QString saved = textOf(document_.path());
    const QString path = askWhereToSave(
        page_, {.title = tr("Save As"),
                .kinds = {{QString::fromStdString(typeName(SequenceFormat::MidiFile)),
                           {"mid", "midi", "smf", "kar"}},
                          {QString::fromStdString(typeName(SequenceFormat::IMelody)), {"imy"}}},
                .proposal = saved.isEmpty() ? name_ + ".mid" : saved,
                .folderKey = "saveFolder"});
    if (path.isEmpty())
        return false;
    const bool losesVoices = sequenceFormatOf(pathOf(path)) == SequenceFormat::IMelody;
    return (!losesVoices || askToLoseVoices()) &&
           write(path, SequenceDocument::SaveOperation::SaveAs);
}

bool SequenceSaver::askToLoseVoices()
{
    QMessageBox box(QMessageBox::Question, tr("Velmora"),
                    tr("An iMelody file holds a single voice and no dynamics. Save it anyway?"),
                    QMessageBox::Save | QMessageBox::Cancel, &page_);
    box.setInformativeText(
        tr("Velmora cannot open iMelody files. A MIDI file keeps everything that you see."));
    box.setDefaultButton(QMessageBox::Cancel);
    return box.exec() == QMessageBox::Save;
}

bool SequenceSaver::write(const QString& path, SequenceDocument::SaveOperation operation)
{
    const auto format = sequenceFormatOf(pathOf(path));
    const bool isWritten = format && document_.save(pathOf(path), *format, operation);
    if (isWritten) {
        emit saved();
        if (format == SequenceFormat::MidiFile)
            actions_.addRecent(path); // Velmora cannot open other types
        return true;
    }
    QMessageBox box(QMessageBox::Warning, tr("Velmora"),
                    tr("%1 was not saved.").arg(velmora::displayName(pathOf(path))),
                    QMessageBox::Cancel, &page_);
    box.setInformativeText(translated(document_.errorString()));
    const QPushButton* saveAsButton = box.addButton(tr("Save As…"), QMessageBox::AcceptRole);
    box.exec();
    return box.clickedButton() == saveAsButton && saveAs();
}

} // namespace velmora
