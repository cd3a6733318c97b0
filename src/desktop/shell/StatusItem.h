#pragma once

#include <QToolButton>

namespace velmora {

/// Shows or hides an item of a status bar. While the bar shows a message, which the item would
/// cover, the item appears only when the message is gone.
void showItem(QWidget& item, bool isShown);

/// An item of the status line: a text that can be clicked. A long text is cut off, the more so in a
/// narrow window, but screen readers read it whole.
class StatusItem : public QToolButton {
    Q_OBJECT

public:
    enum class Kind {
        Normal,
        Missing, ///< Stands out: something is not there.
    };

    /// `subject` says what the item is about; it is the accessible name until there is a text.
    explicit StatusItem(const QString& subject);

    /// Shows a text; hides the item if it is empty. `help` is the tooltip.
    void show(const QString& text, const QString& help, Kind kind = Kind::Normal);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    /// Fits the shown text into the width.
    void cutOff();

    /// The size of the button with a text that is cut off after some letters of average width.
    QSize sizeWith(int letters) const;

    QString text_; ///< The whole text.
};

} // namespace velmora
