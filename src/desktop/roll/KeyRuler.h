#pragma once

#include <QWidget>

namespace velmora {

/// A slim keyboard below a piano roll: its octaves and black keys lie under the roll's columns.
class KeyRuler : public QWidget {
public:
    explicit KeyRuler(QWidget* parent = nullptr);

    /// Shows the keys from that point of the roll on, in pixels.
    void scrollTo(int x);

private:
    void paintEvent(QPaintEvent* event) override;

    int x_ = 0;
};

} // namespace velmora
