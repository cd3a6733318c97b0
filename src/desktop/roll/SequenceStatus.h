#pragma once

#include <QStatusBar>

class QLabel;

namespace velmora {

class SequenceDocument;

/// The status bar of a sequence window. It shows whether the sequence is playing or being recorded,
/// which keys practice waits for, what is selected, and the number of notes.
class SequenceStatus : public QStatusBar {
    Q_OBJECT

public:
    /// The document must outlive the status bar.
    explicit SequenceStatus(const SequenceDocument& document);

private:
    void showNotes();
    void showMode();
    QString practiceText() const;

    const SequenceDocument& document_;
    QLabel *mode_, *selection_, *interval_, *notes_;
};

} // namespace velmora
