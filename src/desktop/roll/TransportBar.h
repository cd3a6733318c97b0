#pragma once

#include <QToolBar>

class QComboBox;
class QLabel;
class QSpinBox;

namespace velmora {

class AppDelegate;
class SequenceActions;
class SequenceDocument;
struct Learnable;

/// The toolbar of the current piece: record, play, loop, grid, tempo, channel and position.
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
    void addTempo();
    void addChannel();
    void showOptions();
    void showPosition();

    AppDelegate& application_;
    SequenceDocument* document_ = nullptr;
    QSpinBox* tempo_;
    QComboBox* channel_;
    QLabel* position_;
};

} // namespace velmora
