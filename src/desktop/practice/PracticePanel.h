#pragma once

#include "sequencer/PracticeSession.h"

#include <QWidget>

#include <bitset>

class QCheckBox;
class QComboBox;
class QLabel;
class QListWidget;
class QPushButton;
class QSpinBox;

namespace velmora {

class NoteSpinBox;
class SequenceDocument;

/// Chooses what the user practises, and starts and stops it.
class PracticePanel : public QWidget {
    Q_OBJECT

public:
    PracticePanel();

    /// Sets the piece, or null for none. A piece must be replaced before it is destroyed; its
    /// session is stopped.
    void setDocument(SequenceDocument* document);

    /// What the controls say.
    PracticeOptions options() const;

signals:
    /// The user has practised the piece, and keys were struck.
    void finished();

    void fallingNotesToggled(bool areShown);

private:
    void makeFields();
    void connectFields();

    /// Shows the settings of the last time, and keeps those that change.
    void keepSettings();
    void toggle();
    void showVoices();

    /// Shows and keeps the voices and the bars of the piece.
    void recallChoice();
    void keepChoice();
    void showState();
    void repeatBars();

    SequenceDocument* document_ = nullptr;
    std::bitset<16> voices_; ///< The channels in the list.
    QComboBox* hands_;
    NoteSpinBox* split_;
    QListWidget* list_;
    QSpinBox *speed_, *faster_;
    QCheckBox *slowsDown_, *waits_;
    QSpinBox* tolerance_;
    QCheckBox* repeats_;
    QSpinBox *firstBar_, *lastBar_;
    QCheckBox* fallingNotes_;
    QPushButton* start_;
    QLabel* state_;
};

} // namespace velmora
