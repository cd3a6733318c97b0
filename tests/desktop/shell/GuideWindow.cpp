#include "desktop/shell/GuideWindow.h"

#include "desktop/shell/Desktop.h"
#include "desktop/widgets/HelpButton.h"

#include <QDockWidget>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTreeWidget>
#include <QtTest>
#include <gmock/gmock.h>

namespace velmora {

namespace {

class GuideTest : public testing::Test {
protected:
    GuideTest()
    {
        guide.resize(700, 300);
        guide.show();
        guide.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&guide));
    }

    int place() const { return text.verticalScrollBar()->value(); }

    /// Types into the search field and returns what is selected in the text.
    std::string find(const QString& wanted)
    {
        field.clear();
        QTest::keyClicks(&field, wanted);
        return text.textCursor().selectedText().toStdString();
    }

    bool saysNotFound() const
    {
        for (const QLabel* label : guide.findChildren<QLabel*>())
            if (label->text().contains("not in the guide"))
                return true;
        return false;
    }

    GuideWindow guide;
    QTextBrowser& text = *guide.findChild<QTextBrowser*>();
    QLineEdit& field = *guide.findChild<QLineEdit*>();
};

} // namespace

TEST_F(GuideTest, LeadsFromItsContentsAndItsLinksToHeadings)
{
    QSet<QString> anchors;
    int before = 0;
    for (QTreeWidgetItemIterator item(guide.findChild<QTreeWidget*>()); *item != nullptr; ++item) {
        anchors.insert('#' + (*item)->data(0, Qt::UserRole).toString());
        emit(*item)->treeWidget()->itemClicked(*item, 0);
        const int last = text.verticalScrollBar()->maximum();
        EXPECT_GE(place(), std::min(before + 1, last)) << (*item)->text(0).toStdString();
        before = place();
    }
    EXPECT_GT(anchors.size(), 10);
    for (QTextBlock block = text.document()->begin(); block.isValid(); block = block.next())
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            const QTextCharFormat format = part.fragment().charFormat();
            const QString link = format.anchorHref();
            EXPECT_TRUE(!link.startsWith('#') || anchors.contains(link)) << link.toStdString();
            const QString picture = format.toImageFormat().name();
            EXPECT_TRUE(picture.isEmpty() || QFile::exists(":/guide/" + picture))
                << picture.toStdString();
        }
    emit text.anchorClicked(QUrl("#tunings"));
    const int tunings = place();
    emit text.anchorClicked(QUrl("#preferences"));
    QTest::keyClick(&text, Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(place(), tunings) << "back";
}

TEST_F(GuideTest, FindsWordsInBothDirectionsAndSaysWhatItDoesNotFind)
{
    QTest::keyClick(&text, Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(field.hasFocus());
    EXPECT_EQ(find("werckmeister organ"), "");
    EXPECT_TRUE(saysNotFound());
    EXPECT_EQ(find("SCALA"), "Scala");
    EXPECT_FALSE(saysNotFound());
    const int first = text.textCursor().position();
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_GT(text.textCursor().position(), first);
    QTest::keyClick(&guide, Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(text.textCursor().position(), first);
    QTest::keyClick(&guide, Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_GT(text.textCursor().position(), first) << "from the end again";
    QTest::keyClick(&field, Qt::Key_Escape);
    EXPECT_FALSE(guide.isVisible());
}

TEST(Guide, OpensAtTheSectionOfAPanel)
{
    Desktop desktop;
    QWidget* guide = nullptr;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (qobject_cast<GuideWindow*>(window) != nullptr)
            guide = window;
    ASSERT_NE(guide, nullptr);
    const auto& contents = *guide->findChild<QTreeWidget*>();
    const auto shown = [&] {
        return guide->isVisible() ? contents.currentItem()->data(0, Qt::UserRole).toString() : "";
    };

    int buttons = 0;
    for (QWidget* window : QApplication::topLevelWidgets())
        for (HelpButton* button : window->findChildren<HelpButton*>()) {
            guide->hide();
            button->click();
            EXPECT_EQ(shown(), button->section());
            ++buttons;
        }
    EXPECT_GE(buttons, 6);

    auto& dock = *desktop.workspace().findChild<QDockWidget*>("keyboard");
    dock.show();
    auto& help = *dock.findChild<HelpButton*>();
    EXPECT_TRUE(help.isVisible() && dock.rect().contains(help.geometry()));
    guide->hide();
    desktop.workspace().activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&desktop.workspace()));
    help.setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F1);
    EXPECT_EQ(shown(), "playing");
}

} // namespace velmora
