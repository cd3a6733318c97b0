#include "desktop/shell/GuideWindow.h"

#include "desktop/widgets/HelpButton.h"
#include "desktop/widgets/closeByKeys.h"
#include "desktop/widgets/nameParts.h"
#include "desktop/widgets/windowPlace.h"

#include <QAction>
#include <QDesktopServices>
#include <QFile>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QShortcut>
#include <QSplitter>
#include <QTextBlock>
#include <QTextBrowser>
#include <QToolButton>
#include <QTreeWidget>

namespace velmora {

namespace {

constexpr QSize kDefaultSize(1060, 820);
constexpr int kContentsWidth = 260;
constexpr int kPictureWidth = 700;
constexpr double kTextMargin = 18.0;
constexpr int kAnchorRole = Qt::UserRole;

/// Shows the text, with pictures that fit into the window.
class GuideText : public QTextBrowser {
public:
    using QTextBrowser::QTextBrowser;

    QVariant loadResource(int type, const QUrl& name) override
    {
        QVariant resource = QTextBrowser::loadResource(type, name);
        if (type != QTextDocument::ImageResource)
            return resource;
        QImage picture = QImage::fromData(resource.toByteArray());
        const double ratio = devicePixelRatioF();
        const int width = qRound(kPictureWidth * ratio);
        if (picture.width() > width)
            picture = picture.scaledToWidth(width, Qt::SmoothTransformation);
        picture.setDevicePixelRatio(std::max(1.0, picture.width() * ratio / width));
        return picture;
    }
};

/// Names a heading as links do: in lower case, with hyphens and without punctuation.
QString anchorOf(const QString& heading)
{
    static const QRegularExpression punctuation("[^\\w\\s-]",
                                                QRegularExpression::UseUnicodePropertiesOption);
    return heading.toLower().remove(punctuation).replace(' ', '-');
}

} // namespace

GuideWindow::GuideWindow()
    : contents_(new QTreeWidget), text_(new GuideText), wanted_(new QLineEdit), message_(new QLabel)
{
    setWindowTitle(tr("User Guide"));
    text_->setAccessibleName(tr("User guide"));
    message_->setTextFormat(Qt::PlainText);
    text_->setOpenLinks(false);
    text_->setSearchPaths({":/guide"});
    // What is found stays visible while the search field has the focus.
    QPalette colors = text_->palette();
    for (const auto role : {QPalette::Highlight, QPalette::HighlightedText})
        colors.setColor(QPalette::Inactive, role, colors.color(QPalette::Active, role));
    text_->setPalette(colors);
    // The guide is not set as the source: following a link would load it again, without anchors.
    QFile guide(":/guide/guide.md");
    guide.open(QIODevice::ReadOnly);
    text_->setMarkdown(QString::fromUtf8(guide.readAll()));
    text_->setSource(QUrl("#")); // the start of the history
    text_->document()->setDocumentMargin(kTextMargin);
    listContents();
    connect(text_, &QTextBrowser::anchorClicked, this, &GuideWindow::follow);
    connect(text_, &QTextBrowser::sourceChanged, this, &GuideWindow::selectInContents);
    const auto go = [this](const QTreeWidgetItem* item) {
        text_->setSource(QUrl("#" + item->data(0, kAnchorRole).toString()));
    };
    connect(contents_, &QTreeWidget::itemClicked, this, go);
    connect(contents_, &QTreeWidget::itemActivated, this, go);

    auto* splitter = new QSplitter;
    splitter->addWidget(contents_);
    splitter->addWidget(text_);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({kContentsWidth, kDefaultSize.width() - kContentsWidth});
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(makeBar());
    layout->addWidget(splitter, 1);
    resize(kDefaultSize.boundedTo(roomFor(*this)));
    closeByKeys(*this);
    rememberPlace(*this, "guide");
    text_->setFocus();
}

void GuideWindow::listContents()
{
    contents_->setAccessibleName(tr("Contents"));
    contents_->setHeaderHidden(true);
    QTreeWidgetItem* chapter = nullptr;
    for (QTextBlock block = text_->document()->begin(); block.isValid(); block = block.next()) {
        const int level = block.blockFormat().headingLevel();
        if (level == 0)
            continue;
        // Qt's Markdown reader creates no anchors for headings.
        const QString anchor = anchorOf(block.text());
        QTextCharFormat heading;
        heading.setAnchor(true);
        heading.setAnchorNames({anchor});
        QTextCursor(block).mergeBlockCharFormat(heading);
        if (level == 1)
            continue;
        QTreeWidgetItem* item = level == 2 || chapter == nullptr ? new QTreeWidgetItem(contents_)
                                                                 : new QTreeWidgetItem(chapter);
        if (level == 2)
            chapter = item;
        item->setText(0, block.text());
        item->setData(0, kAnchorRole, anchor);
    }
    contents_->expandAll();
}

QAction* GuideWindow::makeAction(const QString& text, const QKeySequence& shortcut)
{
    auto* action = new QAction(text, this);
    action->setShortcut(shortcut);
    action->setToolTip(tr("%1 (%2)").arg(text, shortcut.toString(QKeySequence::NativeText)));
    addAction(action);
    return action;
}

QWidget* GuideWindow::makeBar()
{
    QAction* back = makeAction(tr("Back"), QKeySequence::Back);
    QAction* forward = makeAction(tr("Forward"), QKeySequence::Forward);
    QAction* previous = makeAction(tr("Previous"), QKeySequence::FindPrevious);
    QAction* next = makeAction(tr("Next"), QKeySequence::FindNext);
    back->setEnabled(false);
    forward->setEnabled(false);
    connect(text_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
    connect(text_, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
    connect(back, &QAction::triggered, text_, &QTextBrowser::backward);
    connect(forward, &QAction::triggered, text_, &QTextBrowser::forward);
    connect(previous, &QAction::triggered, this, [this] { find(QTextDocument::FindBackward); });
    connect(next, &QAction::triggered, this, [this] { find(); });

    auto* label = new QLabel(tr("&Find:"));
    label->setBuddy(wanted_);
    wanted_->setClearButtonEnabled(true);
    nameParts(*wanted_);
    connect(wanted_, &QLineEdit::textEdited, this, &GuideWindow::findWhileTyping);
    connect(wanted_, &QLineEdit::returnPressed, this, [this] { find(); });
    const auto focusField = [this] {
        wanted_->setFocus();
        wanted_->selectAll();
    };
    new QShortcut(QKeySequence::Find, this, focusField);
    wanted_->setToolTip(
        tr("Find words in the guide (%1)")
            .arg(QKeySequence(QKeySequence::Find).toString(QKeySequence::NativeText)));

    auto* bar = new QWidget;
    auto* layout = new QHBoxLayout(bar);
    layout->setContentsMargins({});
    const auto addButton = [layout](QAction* action) {
        auto* button = new QToolButton;
        button->setDefaultAction(action);
        button->setFocusPolicy(Qt::TabFocus);
        layout->addWidget(button);
    };
    addButton(back);
    addButton(forward);
    layout->addWidget(label);
    layout->addWidget(wanted_);
    addButton(previous);
    addButton(next);
    layout->addWidget(message_, 1);
    return bar;
}

void GuideWindow::showSection(const QString& section)
{
    present(*this);
    if (!section.isEmpty())
        text_->setSource(QUrl("#" + section));
}

void GuideWindow::serve(QWidget& window)
{
    for (const HelpButton* button : window.findChildren<HelpButton*>())
        connect(button, &QToolButton::clicked, this,
                [this, button] { showSection(button->section()); });
}

void GuideWindow::find(QTextDocument::FindFlags flags)
{
    message_->clear();
    const QString wanted = wanted_->text();
    if (wanted.isEmpty() || text_->find(wanted, flags))
        return;
    const QTextCursor before = text_->textCursor();
    text_->moveCursor(flags.testFlag(QTextDocument::FindBackward) ? QTextCursor::End
                                                                  : QTextCursor::Start);
    if (text_->find(wanted, flags))
        return;
    text_->setTextCursor(before);
    message_->setText(tr("“%1” is not in the guide.").arg(wanted));
}

void GuideWindow::findWhileTyping()
{
    // A longer word may begin where the shorter one was found.
    QTextCursor cursor = text_->textCursor();
    cursor.setPosition(cursor.selectionStart());
    text_->setTextCursor(cursor);
    find();
}

void GuideWindow::follow(const QUrl& link)
{
    message_->clear();
    if (link.isRelative())
        text_->setSource(link);
    else if (!QDesktopServices::openUrl(link))
        message_->setText(tr("No program could open %1.").arg(link.toDisplayString()));
}

void GuideWindow::selectInContents(const QUrl& source)
{
    for (QTreeWidgetItemIterator item(contents_); *item != nullptr; ++item)
        if ((*item)->data(0, kAnchorRole).toString() == source.fragment())
            contents_->setCurrentItem(*item);
}

} // namespace velmora
