#pragma once

#include <QWidget>

#include <optional>

class QScrollBar;

namespace velmora {

class KeyRuler;
class SequenceView;

/// The piano roll with its scroll bars and the names of its keys. Points of the roll are in pixels
/// from its lower left corner: step 0 is at the bottom.
class SequenceScrollView : public QWidget {
    Q_OBJECT

public:
    explicit SequenceScrollView(QWidget* parent = nullptr);

    SequenceView& view() { return *view_; }

    /// Fits the roll to a sequence of so many steps and to the preferences. Where they scale it
    /// anew, what is in the middle stays there.
    void updateDocumentSizes(double steps);

    /// Puts a point of the roll at the lower left corner, as far as the roll goes.
    void scrollClipView(QPoint point);
    void scrollVertically(double y);

    /// The point at the lower left corner.
    QPoint location() const;

    /// Makes steps higher or keys wider, or the contrary, by so many notches of the wheel.
    void zoomSteps(int notches);
    void zoomKeys(int notches);

signals:
    /// The preferences scale the roll anew: everything that shows keys is to fit itself to them.
    void zoomed();

    /// Not by the document.
    void scrolledByUser();

protected:
    void wheelEvent(QWheelEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool scrollByKey(int key);
    void zoom(const char* preference, int notches);
    void fitBars();
    void follow();

    SequenceView* view_;
    KeyRuler* ruler_;
    QScrollBar *horizontal_, *vertical_;
    double steps_ = 0.0;

    /// The scale that the location holds for.
    int keyWidth_, keyHeight_;

    /// The point of the view that stays when it is zoomed; its middle if there is none.
    std::optional<QPointF> anchor_;

    QPoint wheelTurned_; ///< Of a notch that is not yet complete, in eighths of a degree.
};

} // namespace velmora
