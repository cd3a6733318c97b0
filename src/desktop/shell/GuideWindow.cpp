#include "desktop/shell/GuideWindow.h"

#include "desktop/widgets/closeByKeys.h"
#include "desktop/widgets/windowPlace.h"

#include <QCoreApplication>
#include <QFile>
#include <QTextBlock>
#include <QTextCursor>

namespace velmora {

namespace {

constexpr QSize kUsualSize(1000, 820);
constexpr double kTextMargin = 18.0;

/// Gives the headings the names by which the contents refer to them, which Markdown does not have.
void nameHeadings(QTextDocument& document)
{
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        if (block.blockFormat().headingLevel() == 0)
            continue;
        QTextCharFormat heading;
        heading.setAnchor(true);
        heading.setAnchorNames({block.text().toLower().replace(' ', '-')});
        QTextCursor(block).mergeBlockCharFormat(heading);
    }
}

} // namespace

GuideWindow::GuideWindow()
{
    setWindowTitle(QCoreApplication::translate("GuideWindow", "User Guide"));
    setOpenExternalLinks(true);
    setSearchPaths({":/guide"});
    // Not as a source, which a link would load again, without the names.
    QFile guide(":/guide/guide.md");
    guide.open(QIODevice::ReadOnly);
    setMarkdown(QString::fromUtf8(guide.readAll()));
    setSource(QUrl("#")); // to go back to
    nameHeadings(*document());
    document()->setDocumentMargin(kTextMargin);
    resize(kUsualSize.boundedTo(roomFor(*this)));
    closeByKeys(*this);
    rememberPlace(*this, "guide");
}

} // namespace velmora
