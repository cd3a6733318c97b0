#pragma once

#include <QStatusBar>

class QLabel;

namespace velmora {

class SequenceDocument;

/// Tells how things stand in a sequence: what it waits for where it is practised, what is selected,
/// how many notes there are.
class SequenceStatus : public QStatusBar {
    Q_OBJECT

public:
    /// The document must outlive it.
    explicit SequenceStatus(const SequenceDocument& document);

private:
    void showNotes();
    void showMode();
    QString practice() const;

    const SequenceDocument& document_;
    QLabel *practice_, *selection_, *interval_, *notes_;
};

} // namespace velmora
