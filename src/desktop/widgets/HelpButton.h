#pragma once

#include <QToolButton>

class QDockWidget;

namespace velmora {

/// A "?" in a panel. A click asks for the section of the user guide about the panel, as F1 in the
/// panel does.
class HelpButton : public QToolButton {
    Q_OBJECT

public:
    /// Creates the button as a child of `panel`. `section` names a heading of the guide as links
    /// do: "midi-and-sound".
    HelpButton(const char* section, QWidget& panel);

    /// Changes the section.
    void setSection(const char* section);

    const QString& section() const { return section_; }

private:
    QWidget& panel_;
    QString section_;
};

/// Puts a help button into the title bar of a panel, before the buttons that float and close it. It
/// is hidden whenever they are.
void addHelpButton(QDockWidget& dock, const char* section);

/// Returns the section about the innermost panel with a help button around a widget, which may be
/// null; empty if there is none.
QString guideSectionOf(const QWidget* widget);

} // namespace velmora
