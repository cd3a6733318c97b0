#include "desktop/GuideWindow.h"

#include "desktop/closeByKeys.h"
#include "desktop/windowPlace.h"

#include <QCoreApplication>
#include <QFile>
#include <QScreen>
#include <QTextBlock>
#include <QTextCursor>

namespace {

constexpr QSize kUsualSize(1000, 820);
constexpr double kMargin = 18.0;

/// How much of the screen the guide may fill when it is first opened.
constexpr double kPartOfScreen = 0.9;

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
    document()->setDocumentMargin(kMargin);
    resize(kUsualSize.boundedTo(screen()->availableSize() * kPartOfScreen));
    closeByKeys(*this);
    rememberPlace(*this, "guide");
}
