#include "desktop/shell/exportAudio.h"

#include "app/AudioExport.h"
#include "desktop/shell/StemsDialog.h"
#include "desktop/shell/askWhereToSave.h"
#include "platform/pathNames.h"
#include "sequencer/SequenceDocument.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QMessageBox>
#include <QProgressDialog>

#include <algorithm>
#include <filesystem>
#include <utility>

namespace velmora {

namespace {

constexpr int kProgressSteps = 1000;

/// An export with its progress dialog; deletes itself when it is done.
class ExportProgress : public QProgressDialog {
    Q_DECLARE_TR_FUNCTIONS(velmora::ExportProgress)

public:
    /// `title` is that of the window, and `name` what is exported.
    ExportProgress(QWidget& page, const QString& title, QString name,
                   std::function<void(const QString&)> tell)
        : QProgressDialog(tr("Loading the instrument"), tr("Cancel"), 0, kProgressSteps, &page),
          page_(page), name_(std::move(name)), tell_(std::move(tell))
    {
        setWindowTitle(title);
        setAutoClose(false);
        setAutoReset(false);
        setMinimumDuration(0);
        setMinimumWidth(360);
        connect(this, &QProgressDialog::canceled, &export_, &AudioExport::cancel);
        connect(&export_, &AudioExport::progressed, this, &ExportProgress::showProgress);
        connect(&export_, &AudioExport::finished, this, &ExportProgress::finish);
    }

    void start(const SequenceDocument& document, AppDelegate& application,
               std::vector<SoundTarget> targets)
    {
        export_.start(currentSettings(application), document.snapshot(),
                      document.transport().speed(), std::move(targets));
    }

private:
    void showProgress(const QString& what, double done)
    {
        if (wasCanceled())
            return;
        setLabelText(tr("%1: %2").arg(name_, what));
        setValue(static_cast<int>(done * kProgressSteps));
    }

    void finish(bool isWritten, const QString& error)
    {
        deleteLater();
        hide();
        if (isWritten)
            tell_(tr("Exported %1").arg(name_));
        else if (!error.isEmpty())
            QMessageBox::warning(&page_, tr("Velmora"),
                                 tr("%1 was not exported. %2").arg(name_, error));
    }

    QWidget& page_;
    QString name_;
    std::function<void(const QString&)> tell_;
    AudioExport export_;
};

} // namespace

void exportAudio(QWidget& page, const SequenceDocument& document, const QString& name,
                 AppDelegate& application, const std::function<void(const QString&)>& tell)
{
    const auto beside = std::filesystem::path(document.path()).replace_extension("wav");
    QString proposal = name + ".wav";
    if (!document.path().empty())
        proposal = QFileInfo(textOf(beside.parent_path())).isWritable() ? textOf(beside)
                                                                        : displayName(beside);
    const QString path = askWhereToSave(page, {.title = ExportProgress::tr("Export Audio"),
                                               .kinds = {{"WAV", {"wav"}},
                                                         {"FLAC", {"flac"}},
                                                         {"Ogg Vorbis", {"ogg"}},
                                                         {"Opus", {"opus"}},
                                                         {"MP3", {"mp3"}}},
                                               .proposal = proposal,
                                               .folderKey = "exportFolder"});
    if (!path.isEmpty())
        (new ExportProgress(page, ExportProgress::tr("Export Audio"), displayName(pathOf(path)),
                            tell))
            ->start(document, application, {{pathOf(path)}});
}

void exportStems(QWidget& page, const SequenceDocument& document, const QString& name,
                 AppDelegate& application, const std::function<void(const QString&)>& tell)
{
    const QString piece =
        document.path().empty() ? name : displayName(std::filesystem::path(document.path()).stem());
    StemsDialog dialog(document.snapshot(), piece, &page);
    if (dialog.exec() == QDialog::Accepted)
        (new ExportProgress(page, dialog.windowTitle(), piece, tell))
            ->start(document, application, dialog.targets());
}

bool isExportingAudio(const QWidget& page)
{
    const auto exports = page.findChildren<QProgressDialog*>();
    return std::ranges::any_of(exports, &QWidget::isVisible);
}

} // namespace velmora
