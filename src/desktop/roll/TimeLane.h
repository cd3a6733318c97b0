#pragma once

#include "desktop/roll/Lane.h"
#include "sequencer/timeEntries.h"

#include <QPointF>

#include <cstddef>
#include <optional>

class QMenu;

namespace velmora {

/// Shows the tempos, time signatures, key signatures and markers of a piece, each kind in a column
/// of its own. They can be added, changed, moved and deleted with the mouse and the keyboard.
class TimeLane : public Lane {
    Q_OBJECT

public:
    explicit TimeLane(const SequenceView& view);

    void setEditor(SequenceEditor* editor) override;

private:
    int preferredThickness() const override;
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

    bool isEditable() const;
    /// Where the view shows an entry, and all entries of a kind.
    QRectF rectOf(const TimeEntry& entry) const;
    QRectF columnOf(std::size_t kind) const;
    std::optional<TimeEntry> entryAt(QPointF point) const;
    void select(std::optional<TimeEntry> entry);
    void selectNeighbour(bool isLater);
    void removeSelected();
    void addTo(QMenu& menu, double step);

    std::optional<TimeEntry> selected_;
    std::optional<double> draggedTo_; ///< Where the selected entry would be dropped, in steps.
    QPointF press_;
};

} // namespace velmora
