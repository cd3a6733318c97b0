#pragma once

#include "desktop/roll/RollIndex.h"

#include <QWidget>

namespace velmora {

class KeyboardView;
class SequenceDocument;

/// Shows the notes of the coming two bars above the on-screen keyboard. They fall onto the keys
/// that they need; those whose keys the keyboard does not have fall at its edges, in grey. While
/// the user practises, the notes that need not be played are grey.
class FallingNotes : public QWidget {
public:
    /// Lies above `keyboard`, which must outlive it.
    explicit FallingNotes(const KeyboardView& keyboard);

    /// Sets the piece, or null for none. A piece must be replaced before it is destroyed.
    void setDocument(SequenceDocument* document);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void paintNotes(QPainter& painter, double position, double steps);

    const KeyboardView& keyboard_;
    SequenceDocument* document_ = nullptr;
    RollIndex index_;
    bool isIndexed_ = false; ///< False if the notes have changed since.
};

} // namespace velmora
