#include "desktop/shell/GuideWindow.h"

#include "desktop/widgets/closeByKeys.h"
#include "desktop/widgets/windowPlace.h"

#include <QCoreApplication>
#include <QFile>
#include <QTextBlock>
#include <QTextCursor>

namespace velmora {

namespace {

constexpr QSize kDefaultSize(1000, 820);
constexpr double kTextMargin = 18.0;

/// Adds the anchors that the links in the table of contents refer to: Qt's Markdown reader creates
/// none for headings.
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
    // The guide is not set as the source: following a link would load it again, without anchors.
    QFile guide(":/guide/guide.md");
    guide.open(QIODevice::ReadOnly);
    setMarkdown(QString::fromUtf8(guide.readAll()));
    setSource(QUrl("#")); // the start of the history
    nameHeadings(*document());
    document()->setDocumentMargin(kTextMargin);
    resize(kDefaultSize.boundedTo(roomFor(*this)));
    closeByKeys(*this);
    rememberPlace(*this, "guide");
}

} // namespace velmora
