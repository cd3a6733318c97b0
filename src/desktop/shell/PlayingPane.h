#pragma once

#include <QWidget>

class QCheckBox;
class QComboBox;
class QSpinBox;

namespace velmora {

/// The part of the preferences that says how MIDI devices are played. Each change is stored
/// immediately.
class PlayingPane : public QWidget {
    Q_OBJECT

public:
    PlayingPane();

    /// Shows the current preferences.
    void read();

signals:
    /// A preference has changed.
    void changed();

private:
    QSpinBox* makeSemitones(const char* key, const QString& help);
    void showReading();

    QComboBox* touch_;
    QSpinBox *transposition_, *bendRange_;
    QCheckBox *plain_, *correction_;
};

} // namespace velmora
