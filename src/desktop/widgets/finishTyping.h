#pragma once

class QWidget;

namespace velmora {

/// Takes over what is being typed into a field of a panel, as leaving the field does. Call this
/// before the panel shows something else.
void finishTyping(const QWidget& panel);

} // namespace velmora
