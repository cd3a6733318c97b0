#include "desktop/shell/GuideWindow.h"

#include "desktop/widgets/HelpButton.h"

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
        EXPECT_GT(place(), before) << (*item)->text(0).toStdString();
        if (place() < text.verticalScrollBar()->maximum())
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
    EXPECT_EQ(find("WOLF"), "wolf");
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

TEST_F(GuideTest, OpensAtTheSectionOfAPanel)
{
    QWidget panel;
    QLineEdit inside(&panel);
    HelpButton button("tunings", panel);
    EXPECT_EQ(guideSectionOf(&inside), "tunings");
    EXPECT_EQ(guideSectionOf(nullptr), "");
    guide.serve(panel);
    guide.hide();
    button.click();
    EXPECT_TRUE(guide.isVisible());
    EXPECT_GT(place(), 0);
}

} // namespace velmora
