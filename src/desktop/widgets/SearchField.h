#pragma once

#include <QLineEdit>

namespace velmora {

/// A field to search a list with. Esc empties it.
class SearchField : public QLineEdit {
    Q_OBJECT

public:
    /// `hint` says what can be found: it is shown in the empty field and is its accessible name.
    explicit SearchField(const QString& hint, QWidget* parent = nullptr);

    /// Returns whether each of the typed words occurs in a text, in any letter case.
    bool finds(const QString& text) const;

    /// Returns whether a text begins with what is typed, in any letter case.
    bool begins(const QString& text) const;

signals:
    /// The user wants to go on to what was found, with the Down key.
    void left();

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace velmora
