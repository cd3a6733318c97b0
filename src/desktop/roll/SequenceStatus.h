#pragma once

#include <QWidget>

class QLabel;

namespace velmora {

class SequenceDocument;

/// A strip below a piano roll. It shows whether the sequence is playing or being recorded,
/// which keys practice waits for, what is selected, and the number of notes.
class SequenceStatus : public QWidget {
    Q_OBJECT

public:
    /// The document must outlive the strip.
    explicit SequenceStatus(const SequenceDocument& document);

private:
    void showNotes();
    void showMode();
    QString intervalText() const;
    QString practiceText() const;
    QString keysText() const;

    const SequenceDocument& document_;
    QLabel *mode_, *selection_, *interval_, *notes_;
};

} // namespace velmora
