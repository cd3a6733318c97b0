#pragma once

#include <QToolButton>

namespace velmora {

/// An item of the status line: a text that can be clicked. A long text is cut off, but screen
/// readers read it whole.
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
};

} // namespace velmora
