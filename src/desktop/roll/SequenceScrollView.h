#pragma once

#include "desktop/roll/RollGeometry.h"

#include <QVariantAnimation>
#include <QWidget>

#include <optional>
#include <vector>

class QScrollBar;

namespace velmora {

class KeyRuler;
class Lanes;
class OutlyingNotes;
class SequenceView;
class TimeRuler;

/// The piano roll with its scroll bars, a ruler of key names and, in the calm scheme, one of bars.
/// Points of the roll are in pixels, x along the keys and y along the time, from its lower left
/// corner, where the lowest key and step 0 are.
class SequenceScrollView : public QWidget {
    Q_OBJECT

public:
    explicit SequenceScrollView(QWidget* parent = nullptr);

    SequenceView& view() { return *view_; }
    Lanes& lanes() { return *lanes_; }

    /// Fits the roll to a sequence of `steps` steps and to the preferences. A new scale there
    /// replaces the zoom, and time runs in the direction chosen there; the middle of the view stays
    /// in place.
    void updateSize(double steps);

    const RollScale& scale() const { return scale_; }

    /// Scrolls until a point is at the lower left corner, within the bounds of the roll.
    void scrollTo(QPoint point);

    /// Scrolls until a step is at the edge from which time runs.
    void scrollToStep(double step);

    /// Scrolls to the start, and until a key is in the middle.
    void scrollToKey(double key);

    /// The point at the lower left corner.
    QPoint location() const;

    /// Makes the steps longer or the keys wider, as if the wheel had turned by this many notches;
    /// negative notches do the opposite.
    void zoomSteps(int notches);
    void zoomKeys(int notches);

    /// Show the whole piece, or the selected notes if there are any, as large as possible.
    void zoomToAll();
    void zoomToSelection();

signals:
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
    void zoom(int RollScale::*size, int notches);
    void setScale(RollScale scale);
    void showNotes(const std::vector<Note>& notes);
    void fitBars();

    /// Puts everything in its place around the view, for the direction in which time runs.
    void arrange();
    void setTimeAcross(bool isAcross);
    QPointF middle() const;

    /// Returns a length in pixels as the value of a scroll bar, within what fits into one.
    static int barValue(double pixels);

    /// Lets the editor know the scale.
    void tellEditor();
    void follow();

    SequenceView* view_;
    KeyRuler* ruler_;
    TimeRuler* timeRuler_;
    Lanes* lanes_;
    OutlyingNotes* outlyingNotes_;
    QScrollBar *keyBar_, *timeBar_;
    double steps_ = 0.0;

    /// The scale to which the values of the scroll bars refer.
    RollScale scale_ = preferredScale();

    RollScale preferred_ = scale_; ///< The scale that was last seen in the preferences.

    /// The point that stays in place during a zoom, in pixels along the keys and the time from the
    /// lower left corner of the view; the middle of the view if it is empty.
    std::optional<QPointF> anchor_;

    QVariantAnimation glide_;
    double pinch_ = 0.0;    ///< The part of a pinch that is less than a notch.
    QPoint wheelRemainder_; ///< Rotation towards the next notch, in eighths of a degree.
};

} // namespace velmora
