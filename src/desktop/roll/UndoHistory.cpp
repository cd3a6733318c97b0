#include "desktop/roll/UndoHistory.h"

#include "desktop/widgets/closeByKeys.h"
#include "desktop/widgets/windowPlace.h"

namespace velmora {

UndoHistory::UndoHistory(QUndoGroup& stacks) : QUndoView(&stacks)
{
    setWindowTitle(tr("Undo History"));
    setAccessibleName(tr("Edits of the piece"));
    setEmptyLabel(tr("As opened"));
    closeByKeys(*this);
    rememberPlace(*this, "undoHistory");
}

} // namespace velmora
