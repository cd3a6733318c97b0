#pragma once

class QWidget;

namespace velmora {

/// Returns whether a widget should move its contents at once instead of gliding, because the user
/// or the desktop prefers little motion.
bool reducesMotion(const QWidget& widget);

} // namespace velmora
