#pragma once

#include <QPushButton>

namespace velmora {

/// A button that shows a colour and lets the user choose another one.
class ColorButton : public QPushButton {
    Q_OBJECT

public:
    /// `name` says what the colour is for: it is the dialog's title and the accessible name.
    explicit ColorButton(const QString& name, QWidget* parent = nullptr);

    void setColor(const QColor& color);

signals:
    /// The user has chosen another colour.
    void chosen(const QColor& color);

private:
    void choose();

    QColor color_;
};

} // namespace velmora
