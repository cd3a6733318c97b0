#pragma once

#include <QToolBar>

class QComboBox;
class QLabel;
class QSpinBox;

namespace velmora {

class SequenceActions;
class SequenceDocument;

/// The tools of a sequence window: recording and playing, tempo, grid, loop, channel, and where the
/// position is.
class TransportBar : public QToolBar {
    Q_OBJECT

public:
    /// Both must outlive it.
    TransportBar(SequenceDocument& document, SequenceActions& actions);

signals:
    /// The user is done with a field: the keys are for the piano roll again.
    void done();

private:
    void addButton(QAction& action, const QString& otherTitle);
    void addTempo();
    void addChannel();
    void showOptions();
    void showPosition();

    SequenceDocument& document_;
    QSpinBox* tempo_;
    QComboBox* channel_;
    QLabel* position_;
};

} // namespace velmora
