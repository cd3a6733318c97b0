#pragma once

#include <QTextDocument>
#include <QWidget>

class QAction;
class QLabel;
class QLineEdit;
class QTextBrowser;
class QTreeWidget;

namespace velmora {

/// Shows the user guide beside its table of contents, and finds words in it.
class GuideWindow : public QWidget {
    Q_OBJECT

public:
    GuideWindow();

    /// Brings the window to the front and shows the section whose heading links call `section`,
    /// such as "midi-and-sound". Leaves the text where it is if `section` is empty.
    void showSection(const QString& section);

    /// Shows the right section whenever a help button in `window` is clicked.
    void serve(QWidget& window);

private:
    void listContents();
    QWidget* makeBar();
    QAction* makeAction(const QString& text, const QKeySequence& shortcut);
    void find(QTextDocument::FindFlags flags = {});
    void findWhileTyping();
    void follow(const QUrl& link);
    void selectInContents(const QUrl& source);

    QTreeWidget* contents_;
    QTextBrowser* text_;
    QLineEdit* wanted_;
    QLabel* message_;
};

} // namespace velmora
