#pragma once

class QScrollArea;
class QWidget;

namespace velmora {

/// Keeps the wheel from changing the value of a slider, a menu or a spin box that does
/// not have the focus. What the widget lies in is scrolled instead.
void leaveWheelToScrolling(QWidget& widget);

/// Returns a scroll area without a frame around a widget, which it owns. It scrolls vertically
/// only.
QScrollArea* newScrollArea(QWidget* content);

} // namespace velmora
