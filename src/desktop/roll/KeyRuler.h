#pragma once

#include "desktop/roll/RollGeometry.h"

#include <QWidget>

#include <array>

namespace velmora {

struct KeyboardPicture;
class SequenceDocument;

/// A narrow keyboard below the piano roll, or at its left while time runs across. Its octaves and
/// black keys are aligned with the columns of the roll. In the calm scheme it shows the states of
/// the keys, as the keyboard does.
class KeyRuler : public QWidget {
    Q_OBJECT

public:
    explicit KeyRuler(QWidget* parent = nullptr);

    /// Sets the document whose key states are shown; null for none.
    void setDocument(const SequenceDocument* document);

    /// Shows the keys of what is visible of the roll.
    void show(const RollGeometry& geometry);

private:
    void paintEvent(QPaintEvent* event) override;
    void paintNames(QPainter& painter, const KeyboardPicture& picture) const;
    void refresh();

    const SequenceDocument* document_ = nullptr;
    RollGeometry geometry_{};
    std::array<int, 128> states_{};
};

} // namespace velmora
