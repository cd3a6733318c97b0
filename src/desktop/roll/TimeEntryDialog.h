#pragma once

#include "sequencer/timeEntries.h"

#include <QDialog>

class QComboBox;
class QDoubleSpinBox;
class QFormLayout;
class QLineEdit;
class QSpinBox;

namespace velmora {

/// Asks for a tempo, a signature or a marker and where it begins.
class TimeEntryDialog : public QDialog {
    Q_OBJECT

public:
    /// Begins with the values of `entry`. `time` tells the bars and must outlive the dialog.
    TimeEntryDialog(const TimeEntry& entry, const MusicalTime& time, QWidget* parent);

    /// What the user has chosen.
    TimeEntry entry() const;

private:
    void addFields(QFormLayout& form);
    void addPlace(QFormLayout& form);
    void limitBeats();
    double step() const;

    const TimeEntry before_;
    const MusicalTime& time_;
    QSpinBox* bar_;
    QDoubleSpinBox* beat_;

    // Of these, only those of the kind of entry exist.
    QDoubleSpinBox* tempo_ = nullptr;
    QSpinBox* count_ = nullptr;
    QComboBox* choice_ = nullptr; ///< The unit of a time signature, or the key.
    QLineEdit* text_ = nullptr;
};

/// Returns what a tempo, a signature or a marker is in a word or two, such as "3/4" or "G major".
QString entryText(const TimeEntry& entry);

} // namespace velmora
