#pragma once

#include <QUndoView>

namespace velmora {

/// A window with the edits of the current piece. A click on one of them goes back to it, or forward
/// again.
class UndoHistory : public QUndoView {
    Q_OBJECT

public:
    /// Shows the active stack of a group, which must outlive the window.
    explicit UndoHistory(QUndoGroup& stacks);
};

} // namespace velmora
