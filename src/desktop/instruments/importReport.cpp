#include "desktop/instruments/importReport.h"

#include "desktop/widgets/messages.h"
#include "desktop/widgets/stopTitle.h"
#include "import/InstrumentDocument.h"

#include <QMessageBox>

namespace velmora {

QString leftOutText(std::size_t count)
{
    return QObject::tr("%n file(s) or sample(s) were left out", nullptr, static_cast<int>(count));
}

QString notLoadedText(std::size_t count)
{
    return QObject::tr("%n stop(s) were not loaded", nullptr, static_cast<int>(count));
}

void showImportReport(QWidget& parent, const InstrumentDocument& document)
{
    const ImportReport& report = document.report();
    QMessageBox box(QMessageBox::Information, QObject::tr("Import Report"),
                    translatedTitle(document.title()), QMessageBox::Close, &parent);
    QString summary = QObject::tr("Stops: %1, keys: %2, samples: %3.")
                          .arg(report.ranks)
                          .arg(report.pipes)
                          .arg(report.samples);
    if (!report.skipped.empty())
        summary += "\n" + leftOutText(report.skipped.size()) + ".";
    if (!report.notLoaded.empty())
        summary += "\n" + notLoadedText(report.notLoaded.size()) + ".";
    box.setInformativeText(summary);

    QString details;
    for (const auto& [rank, why] : report.notLoaded)
        details += QString::fromStdString(rank) + ": " + loadStateText(why) + "\n";
    for (const auto& [file, reason] : report.skipped)
        details += QString::fromStdString(file) + ": " + translated(reason) + "\n";
    box.setDetailedText(details);
    box.exec();
}

} // namespace velmora
