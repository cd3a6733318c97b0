#include "desktop/shell/askForFiles.h"

#include "app/generalMidiBanks.h"
#include "desktop/shell/askWhereToSave.h"
#include "platform/pathNames.h"
#include "preferences/settings.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>

namespace velmora {

namespace {

constexpr const char* kFolderKey = "openFolder";
constexpr const char* kInstrumentFolderKey = "instrumentFolder";
constexpr const char* kInstruments = "*.sf2 *.gig *.organ_hauptwerk_xml *.xml *.organ *.orgue";
constexpr const char* kTunings = "*.scl *.ascl *.kbm *.tun *.mtx";
constexpr const char* kSequences = "*.mid *.midi *.smf *.kar *.musicxml *.mxl";
constexpr const char* kSessions = "*.velmora";

struct Opening {
    Q_DECLARE_TR_FUNCTIONS(velmora::Desktop)
};

void rememberFolderOf(const QString& path, const std::string& key = kFolderKey)
{
    if (!path.isEmpty())
        setPreference(key, QFileInfo(path).absolutePath());
}

/// Asks for several files in the folder that was last chosen under `key`, or else in `usual`.
QStringList askIn(const std::string& key, const QString& usual, QWidget* parent,
                  const QString& title, const QString& filters)
{
    QStringList paths = QFileDialog::getOpenFileNames(
        parent, title, dialogFolder(key, usual), filters, nullptr,
        QFileDialog::HideNameFilterDetails); // they are too long to be read
    rememberFolderOf(paths.value(0), key);
    return paths;
}

/// Returns the folder where packages install SoundFonts; empty if there is none.
QString bankFolder()
{
    const auto banks = generalMidiBanks();
    return banks.empty() ? QString() : textOf(banks.front().parent_path());
}

} // namespace

QStringList askForFiles(QWidget* parent)
{
    const QString every = QStringList{kInstruments, kTunings, kSequences, kSessions}.join(' ');
    return askIn(kFolderKey, {}, parent, Opening::tr("Open"),
                 Opening::tr("All supported files (%1);;Instruments (%2);;Tunings (%3);;Sequences "
                             "(%4);;Sessions (%5);;All files (*)")
                     .arg(every, kInstruments, kTunings, kSequences, kSessions));
}

QStringList askForInstruments(QWidget* parent)
{
    return askIn(kInstrumentFolderKey, bankFolder(), parent, Opening::tr("Open Instrument"),
                 Opening::tr("Instruments (%1);;All files (*)").arg(kInstruments));
}

QStringList askForTunings(QWidget* parent, const std::function<void(const QString&)>& highlighted)
{
    QFileDialog dialog(parent, Opening::tr("Open Tuning"), dialogFolder(kFolderKey),
                       Opening::tr("Tunings (%1);;All files (*)").arg(kTunings));
    dialog.setFileMode(QFileDialog::ExistingFiles);
    QObject::connect(&dialog, &QFileDialog::currentChanged, highlighted);
    if (dialog.exec() != QDialog::Accepted)
        return {};
    rememberFolderOf(dialog.selectedFiles().value(0));
    return dialog.selectedFiles();
}

QString askForSession(QWidget* parent)
{
    QString path =
        QFileDialog::getOpenFileName(parent, Opening::tr("Open Session"), dialogFolder(kFolderKey),
                                     Opening::tr("Sessions (%1)").arg(kSessions));
    rememberFolderOf(path);
    return path;
}

QString askWhereToSaveSession(QWidget& parent)
{
    return askWhereToSave(parent, {.title = Opening::tr("Save Session"),
                                   .kinds = {{Opening::tr("Session"), {"velmora"}}},
                                   .proposal = Opening::tr("Session") + ".velmora",
                                   .folderKey = "saveFolder"});
}

QString askWhereToSaveTuning(QWidget& parent, const QString& name)
{
    const QString base = name.endsWith(".scl") ? name.chopped(4) : name;
    return askWhereToSave(parent, {.title = Opening::tr("Save Tuning"),
                                   .kinds = {{Opening::tr("Scale"), {"scl"}}},
                                   .proposal = base + ".scl",
                                   .folderKey = "saveFolder"});
}

bool askToOpenAgain(QWidget* parent)
{
    QMessageBox box(QMessageBox::Question, Opening::tr("Velmora"),
                    Opening::tr("Velmora ended while it was opening what was open last time. Open "
                                "it again?"),
                    QMessageBox::NoButton, parent);
    const QPushButton* again = box.addButton(Opening::tr("Open Again"), QMessageBox::AcceptRole);
    box.setEscapeButton(box.addButton(Opening::tr("Start Empty"), QMessageBox::RejectRole));
    box.exec();
    return box.clickedButton() == again;
}

} // namespace velmora
