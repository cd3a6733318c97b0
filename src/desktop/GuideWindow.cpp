#include "desktop/GuideWindow.h"

#include "desktop/windowPlace.h"

#include <QCoreApplication>

namespace {

constexpr QSize kUsualSize(1000, 820);
constexpr double kMargin = 18.0;

} // namespace

GuideWindow::GuideWindow()
{
    setWindowTitle(QCoreApplication::translate("GuideWindow", "Velmora User Guide"));
    setOpenExternalLinks(true);
    setSearchPaths({":/guide"});
    setSource(QUrl("qrc:/guide/guide.md"), QTextDocument::MarkdownResource);
    document()->setDocumentMargin(kMargin);
    resize(kUsualSize);
    rememberPlace(*this, "guide");
}
