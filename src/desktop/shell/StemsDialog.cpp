#include "desktop/shell/StemsDialog.h"

#include "desktop/shell/askWhereToSave.h"
#include "platform/pathNames.h"
#include "preferences/settings.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>

#include <utility>

namespace velmora {

namespace {

constexpr const char* kStemsFolder = "exportFolder";

} // namespace

StemsDialog::StemsDialog(UnsavedSequence sequence, QString name, QWidget* parent)
    : QDialog(parent), sequence_(std::move(sequence)), name_(std::move(name)),
      format_(new QComboBox), folder_(new QLineEdit(dialogFolder(kStemsFolder))), files_(new QLabel)
{
    setWindowTitle(tr("Export Voices"));
    auto* explanation =
        new QLabel(tr("Every voice that sounds is written to a sound file of its own. Muted voices "
                      "are left out. Played together, the files sound like the piece."));
    explanation->setWordWrap(true);
    for (const auto& [text, extension] :
         std::initializer_list<std::pair<const char*, const char*>>{{"WAV", ".wav"},
                                                                    {"FLAC", ".flac"},
                                                                    {"Ogg Vorbis", ".ogg"},
                                                                    {"Opus", ".opus"},
                                                                    {"MP3", ".mp3"}})
        format_->addItem(text, extension);
    files_->setTextFormat(Qt::PlainText);

    auto* browse = new QPushButton(tr("&Browse…"));
    auto* place = new QHBoxLayout;
    place->addWidget(folder_, 1);
    place->addWidget(browse);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    QPushButton* exports = buttons->button(QDialogButtonBox::Ok);
    exports->setText(tr("&Export"));
    auto* form = new QFormLayout(this);
    form->addRow(explanation);
    auto* folderLabel = new QLabel(tr("F&older:"));
    folderLabel->setBuddy(folder_);
    form->addRow(folderLabel, place);
    form->addRow(tr("&Format:"), format_);
    form->addRow(tr("Files:"), files_);
    form->addRow(buttons);
    setMinimumWidth(420);
    connect(browse, &QPushButton::clicked, this, &StemsDialog::chooseFolder);
    connect(format_, &QComboBox::currentIndexChanged, this, &StemsDialog::showFiles);
    connect(buttons, &QDialogButtonBox::accepted, this, &StemsDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &StemsDialog::reject);
    showFiles();
    exports->setEnabled(!targets().empty());
}

std::vector<SoundTarget> StemsDialog::targets() const
{
    return stemsOf(sequence_, pathOf(folder_->text()), name_.toStdString(),
                   format_->currentData().toString().toStdString());
}

void StemsDialog::chooseFolder()
{
    const QString folder = QFileDialog::getExistingDirectory(this, windowTitle(), folder_->text());
    if (!folder.isEmpty())
        folder_->setText(folder);
}

void StemsDialog::showFiles()
{
    QStringList names;
    for (const SoundTarget& target : targets())
        names += displayName(target.file);
    files_->setText(names.empty() ? tr("No voice of the piece sounds.") : names.join('\n'));
}

bool StemsDialog::mayReplaceFiles()
{
    QStringList existing;
    for (const SoundTarget& target : targets()) {
        std::error_code error;
        if (std::filesystem::exists(target.file, error))
            existing += displayName(target.file);
    }
    return existing.empty() ||
           QMessageBox::question(this, tr("Velmora"),
                                 tr("%n file(s) already exist. Do you want to replace them?",
                                    nullptr, static_cast<int>(existing.size())) +
                                     "\n\n" + existing.join('\n')) == QMessageBox::Yes;
}

void StemsDialog::accept()
{
    const QString folder = folder_->text();
    if (!QDir::isAbsolutePath(folder) || !QDir().mkpath(folder)) {
        QMessageBox::warning(this, tr("Velmora"),
                             tr("The folder %1 does not exist and cannot be created.").arg(folder));
        return;
    }
    if (!mayReplaceFiles())
        return;
    setPreference(kStemsFolder, folder);
    QDialog::accept();
}

} // namespace velmora
