#pragma once

#include <QToolBar>

class QComboBox;
class QLabel;
class QSpinBox;

namespace velmora {

class SequenceActions;
class SequenceDocument;

/// The toolbar of a sequence window: record, play, loop, grid, tempo, channel and position.
class TransportBar : public QToolBar {
    Q_OBJECT

public:
    /// The document and the actions must outlive the toolbar.
    TransportBar(SequenceDocument& document, SequenceActions& actions);

signals:
    /// The user has finished with a field; the piano roll should get the keyboard focus back.
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
