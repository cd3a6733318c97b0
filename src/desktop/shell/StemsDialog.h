#pragma once

#include "app/renderFiles.h"

#include <QDialog>

#include <vector>

class QComboBox;
class QLabel;
class QLineEdit;

namespace velmora {

/// Asks into which folder, and in which format, each voice of a piece shall be written.
class StemsDialog : public QDialog {
    Q_OBJECT

public:
    /// `name` is what the files are called after.
    StemsDialog(UnsavedSequence sequence, QString name, QWidget* parent);

    /// The files to be written. Once the dialog is accepted, their folder exists, and the user has
    /// agreed to replace those that exist.
    std::vector<SoundTarget> targets() const;

    void accept() override;

private:
    void chooseFolder();
    void showFiles();
    bool mayReplaceFiles();

    UnsavedSequence sequence_;
    QString name_;
    QComboBox* format_;
    QLineEdit* folder_;
    QLabel* files_;
};

} // namespace velmora
