#pragma once

class QLineEdit;
class QToolBar;

namespace velmora {

// Qt leaves some parts of its widgets without a name, so that screen readers cannot speak them.

/// Names the button that shows the tools for which a toolbar has no room.
void nameParts(const QToolBar& toolBar);

/// Names the button that clears a field.
void nameParts(const QLineEdit& field);

} // namespace velmora
