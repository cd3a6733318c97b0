#pragma once

#include <QString>

class QAccessibleInterface;
class QObject;

namespace velmora {

class SequenceView;

/// Presents a `SequenceView` to screen readers as a list of notes in the order of the sequence;
/// null for an object of another class. For `QAccessible::installFactory`.
QAccessibleInterface* makeRollAccessible(const QString& className, QObject* object);

/// Lets screen readers speak the selected note, if there is only one.
void announceNotes(SequenceView& view);

} // namespace velmora
