#pragma once

class QToolBar;

namespace velmora {

/// Names the button that shows the tools for which a toolbar has no room. Qt leaves it without a
/// name, so that screen readers could not speak it.
void nameExtension(const QToolBar& toolBar);

} // namespace velmora
