#pragma once

#include <QWidget>

class QComboBox;
class QLabel;
class QToolButton;

namespace velmora {

class PlayingOptions;

/// Returns a number of semitones with its sign, such as "+2"; "0" without one.
QString transpositionText(int semitones);

/// The velocity curve and the transposition of the MIDI devices. Disabled in the plain reading.
class PlayingControls : public QWidget {
    Q_OBJECT

public:
    explicit PlayingControls(PlayingOptions& options);

private:
    void showOptions();
    QToolButton* makeButton(const QString& text, const QString& name, int semitones);

    PlayingOptions& options_;
    QComboBox* touch_;
    QToolButton *lower_, *higher_;
    QLabel* transposition_;
};

} // namespace velmora
