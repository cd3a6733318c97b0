#include "desktop/roll/writeRoll.h"

#include "base/Text.h"
#include "desktop/roll/RollPaper.h"
#include "platform/writeFile.h"

#include <QBuffer>
#include <QImage>
#include <QLocale>
#include <QPainter>
#include <QPdfWriter>

namespace velmora {

namespace {

void writePdf(QBuffer& file, const RollPaper& paper, const QPageLayout& layout,
              const QString& title)
{
    QPdfWriter writer(&file);
    writer.setResolution(RollPaper::kDotsPerInch);
    writer.setPageLayout(layout);
    writer.setTitle(title);
    QPainter painter(&writer);
    for (int page = 0; page < paper.pages(); ++page) {
        if (page > 0)
            writer.newPage();
        paper.paintPage(painter, page);
    }
}

} // namespace

void writeRoll(const std::filesystem::path& path, const SequenceDocument& document,
               const QString& title, int barsPerLine)
{
    const bool usesInches = QLocale().measurementSystem() == QLocale::ImperialUSSystem;
    const QPageLayout layout(QPageSize(usesInches ? QPageSize::Letter : QPageSize::A4),
                             QPageLayout::Landscape, QMarginsF());
    const RollPaper paper(document, title, barsPerLine,
                          layout.fullRectPixels(RollPaper::kDotsPerInch).size());
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    if (lowerCase(path.extension().string()) == ".png")
        paper.image().save(&file, "PNG");
    else
        writePdf(file, paper, layout, title);
    writeFile(path, file.data().toStdString());
}

} // namespace velmora
