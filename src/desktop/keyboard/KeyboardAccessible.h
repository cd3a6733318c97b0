#pragma once

#include <QString>

class QAccessibleInterface;
class QObject;

namespace velmora {

class KeyboardView;
struct KeyboardPicture;

/// Presents a `KeyboardView` to screen readers as a list of keys with their names and states; null
/// for an object of another class. For `QAccessible::installFactory`.
QAccessibleInterface* makeKeyboardAccessible(const QString& className, QObject* object);

/// Tells screen readers which keys have changed their state.
void announceKeys(KeyboardView& view, const KeyboardPicture& before, const KeyboardPicture& after);

} // namespace velmora
