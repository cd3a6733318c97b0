#pragma once

#include "desktop/tuning/Circle.h"

#include <QWidget>

class QPainter;

namespace velmora {

/// Paints a circle of notes: outside, how far each fifth is from pure or how often it beats, and
/// inside, the same of the major third above each note. The notes can be dragged away from the
/// centre to raise them, and towards it to lower them.
class CircleView : public QWidget {
    Q_OBJECT

public:
    /// What the labels of the intervals say: the distance from pure, or the beats per second.
    enum class Numbers : unsigned char { Cents, Beats };

    CircleView();

    void showCircle(const Circle& circle);
    void showNumbers(Numbers numbers);
    const Circle& circle() const { return circle_; }

    QSize sizeHint() const override { return {360, 360}; }
    QSize minimumSizeHint() const override { return {346, 260}; }

signals:
    /// The user has begun to drag the note of a pitch class, 0…11, and has dragged it so many cents
    /// since then.
    void dragBegun(unsigned tone);
    void dragged(unsigned tone, double cents);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    CircleGeometry geometry() const { return {size(), circle_.notes.size()}; }

    /// The font of the numbers, small enough that none covers another one.
    QFont numberFont() const;
    void paintLabel(QPainter& painter, QPointF middle, const HeardInterval& heard) const;
    void paintThirds(QPainter& painter) const;
    void paintNote(QPainter& painter, std::size_t position) const;

    Circle circle_;
    Numbers numbers_ = Numbers::Cents;
    std::optional<std::size_t> dragged_; ///< The position of the note that the mouse holds.
    double dragStart_ = 0.0;             ///< Its distance from the centre in pixels.
};

} // namespace velmora
