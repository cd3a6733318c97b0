#pragma once

#include <QVariantAnimation>
#include <QWidget>

#include <optional>

class QScrollBar;

namespace velmora {

class KeyRuler;
class Lanes;
class OutlyingNotes;
class SequenceView;
class TimeRuler;
struct Note;

/// The piano roll with its scroll bars, a ruler of key names and, in the calm scheme, one of bars.
/// Points of the roll are in pixels from its lower left corner; step 0 is at the bottom.
class SequenceScrollView : public QWidget {
    Q_OBJECT

public:
    explicit SequenceScrollView(QWidget* parent = nullptr);

    SequenceView& view() { return *view_; }
    Lanes& lanes() { return *lanes_; }

    /// Fits the roll to a sequence of `steps` steps and to the preferences. If the scale changes,
    /// the middle of the view stays in place.
    void updateSize(double steps);

    /// Scrolls until a point is at the lower left corner, within the bounds of the roll.
    void scrollTo(QPoint point);
    void scrollVertically(double y);

    /// The point at the lower left corner.
    QPoint location() const;

    /// Makes the steps taller or the keys wider, as if the wheel had turned by this many notches;
    /// negative notches do the opposite.
    void zoomSteps(int notches);
    void zoomKeys(int notches);

signals:
    /// The scale in the preferences has changed; every view that shows keys must be updated.
    void zoomed();

    /// The user has scrolled the roll. Scrolling by the program is not reported.
    void scrolledByUser();

protected:
    void wheelEvent(QWheelEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool event(QEvent* event) override;
    bool scrollByKey(int key);

    /// Scrolls until a note begins in the middle of the view.
    void reveal(const Note& note);

    /// Scrolls as `scrollTo` does, but gliding if the user likes motion.
    void glideTo(QPoint point);

    /// Where the roll will be at the end of a glide.
    QPoint destination() const;
    void setBars(QPoint point);
    void zoomAround(QPointF place, int notches, bool keys);
    void zoom(const char* preference, int notches);
    void fitBars();

    /// Makes notes snap to the lines that are shown.
    void setGrid();
    void follow();

    SequenceView* view_;
    KeyRuler* ruler_;
    TimeRuler* timeRuler_;
    Lanes* lanes_;
    OutlyingNotes* outlyingNotes_;
    QScrollBar *horizontal_, *vertical_;
    double steps_ = 0.0;

    /// The scale to which the values of the scroll bars refer.
    int keyWidth_, keyHeight_;

    /// The point that stays in place during a zoom, in pixels from the lower left corner of the
    /// view; the middle of the view if it is empty.
    std::optional<QPointF> anchor_;

    QVariantAnimation glide_;
    double pinch_ = 0.0;    ///< The part of a pinch that is less than a notch.
    QPoint wheelRemainder_; ///< Rotation towards the next notch, in eighths of a degree.
};

} // namespace velmora
