#pragma once

#include <QToolButton>

namespace velmora {

/// A "?" in a panel. A click asks for the section of the user guide about the panel.
class HelpButton : public QToolButton {
public:
    /// Creates the button as a child of `panel`. `section` names a heading of the guide as links
    /// do: "midi-and-sound".
    HelpButton(const char* section, QWidget& panel);

    const QString& section() const { return section_; }

private:
    QString section_;
};

/// Returns the section about the innermost panel with a help button around a widget, which may be
/// null; empty if there is none.
QString guideSectionOf(const QWidget* widget);

} // namespace velmora
