#pragma once

#include <QToolBar>

class QComboBox;
class QLabel;
class QDoubleSpinBox;
class QSpinBox;

namespace velmora {

class AppDelegate;
class RecordingActions;
class SequenceActions;
class SequenceDocument;
struct Learnable;

/// The toolbar of the current piece: record, play, loop, grid, tempo, speed, channel and position.
class TransportBar : public QToolBar {
    Q_OBJECT

public:
    /// The arguments must outlive the toolbar.
    TransportBar(SequenceActions& actions, AppDelegate& application);

    /// Shows the tempo, channel and position of a document; null for none. It must be replaced
    /// before it is destroyed.
    void setDocument(SequenceDocument* document);

signals:
    /// The user has finished with a field; the piano roll should get the keyboard focus back.
    void done();

private:
    void addButton(QAction& action, const QString& otherTitle, const Learnable& learnable);
    void addRecording(RecordingActions& recording);
    void addTempo();
    void addSpeed();
    void changeTempo(double beats);
    void addChannel();
    void showOptions();
    void showTempo();
    void showPosition();

    AppDelegate& application_;
    SequenceDocument* document_ = nullptr;
    QDoubleSpinBox* tempo_;
    QSpinBox* speed_;
    QAction* speedField_ = nullptr; ///< Hidden in the plain reading.
    QComboBox* channel_;
    QLabel* position_;
};

} // namespace velmora
