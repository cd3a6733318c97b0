#pragma once

#include <QWidget>

namespace velmora {

/// A narrow keyboard below the piano roll. Its octaves and black keys are aligned with the columns
/// of the roll.
class KeyRuler : public QWidget {
    Q_OBJECT

public:
    explicit KeyRuler(QWidget* parent = nullptr);

    /// Moves the point `x` of the roll, in pixels, to the left edge.
    void scrollTo(int x);

private:
    void paintEvent(QPaintEvent* event) override;

    int x_ = 0;
};

} // namespace velmora
